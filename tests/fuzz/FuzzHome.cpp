#include "FuzzHome.h"

#include "map/subjects/EnterBranch.h"
#include "platform/store/JetStreamFormat.h"
#include "shell/handlers/InstallHandlers.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <cstdlib>

namespace lineforge::fuzz
{

using namespace Qt::StringLiterals;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

Answer User::MsgBox(const QString&, const QString&, Buttons buttons)
{
    switch (buttons) {
    case Buttons::ErrorYesNo:
    case Buttons::QuestionYesNo:
    case Buttons::InformationYesNo:
    case Buttons::QuestionYesNoDefaultNo:
        return Answer::Yes;
    default:
        return Answer::Ok;
    }
}

FuzzHome::Application::Application()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char* names[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, names);
}

FuzzHome::FuzzHome()
    : P(Platform{windows_, User, loop_, screen_, Clipboard, printer_, processes_, directory_.path() + PathSeparator})
{
    Write(u"AliasList.cfg"_s, "x\r\n[Alias]\r\n[Smiths=LfgDat_A,]\r\n[CFG]\r\n[1,]\r\n");
    MakeBranch();
    InstallHandlers(P);
    P.Branch.HomeDir = P.ExecutableDirectory;
    P.Form1.Load();
    // Room for all kinds of items, and a hundredth of the dots to be cleared and scaled each time.
    P.Form1->Picture1.Width = 1500;
    P.Form1->Picture1.Height = 900;
    Require(EnterBranch(P, u"Smiths"_s, u"LfgDat_A"_s));
}

void FuzzHome::Write(const QString& name, const QByteArray& bytes) const
{
    QFile file(Path(name));
    Require(file.open(QFile::WriteOnly | QFile::Truncate) && file.write(bytes) == bytes.size());
}

void FuzzHome::MakeBranch() const
{
    Require(QDir(directory_.path()).mkpath(u"LfgDat_A/LfgGal_A"_s));
    Write(u"LfgDat_A/LfgDat_A.cfg"_s,
          "x\r\n[LfgDat_A]\r\n[Boxes]\r\n1200,600,255,A001,John,\r\n[Lines]\r\n0,0,0,\r\n[Text]\r\n0,0,0,\r\n");
    // The engine takes an empty file for an empty database.
    Write(u"LfgDat_A/LfgDat_A.mdb"_s, {});
    const FileSystem files(directory_.path());
    const Database database(files, u"LfgDat_A/LfgDat_A.mdb"_s);
    QByteArray fields;
    for (const std::string_view field : jetstream::fields)
        fields +=
            (fields.isEmpty() ? "" : ", ") + QByteArray(field.data(), static_cast<qsizetype>(field.size())) + " TEXT";
    database.Prepare("CREATE TABLE Tree99 (" + fields + ")")->Step();
    for (const char* number : {"A001", "A002", "A003"})
        database.Prepare("INSERT INTO Tree99 (File, Forename) VALUES ('" + QByteArray(number) + "', 'John')")->Step();
}

} // namespace lineforge::fuzz
