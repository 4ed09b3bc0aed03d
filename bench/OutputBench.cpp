#include "BenchHome.h"
#include "Machine.h"
#include "Runs.h"
#include "forms/Form1.h"
#include "forms/Form8.h"
#include "output/TextReport.h"
#include "records/RecordSearch.h"
#include "shell/branches/OpenBranch.h"
#include "shell/handlers/InstallHandlers.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

constexpr int people = 100'000;
const QString sought = u"nowhere to be found"_s;

// One branch of 100,000 people.
class LargeBranch
{
public:
    LargeBranch()
    {
        QDir(directory_.path()).mkdir(u"LfgDat_A"_s);
        MakeDatabase(Branch() + u"LfgDat_A.mdb", u'A', people);
        Write(Branch() + u"LfgDat_A.cfg", "[Boxes]\r\n0,0,0,\r\n[Lines]\r\n0,0,0,\r\n[Text]\r\n0,0,0,\r\n");
        Write(Path() + u"AliasList.cfg", "[Alias]\r\n[Large=LfgDat_A,]\r\n[CFG]\r\n[1,]\r\n");
    }

    QString Path() const { return directory_.path() + u'/'; }
    QString Branch() const { return Path() + u"LfgDat_A/"; }

private:
    static void Write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        if (!file.open(QFile::WriteOnly))
            qFatal("can't write a file of the benchmark");
        file.write(bytes);
    }

    QTemporaryDir directory_;
};

const LargeBranch& Home()
{
    static const LargeBranch home;
    return home;
}

// Looks for the word, is told that there is none, and confirms the text file.
class User : public NoUser
{
public:
    Answer MsgBox(const QString&, const QString&, Buttons) override { return Answer::Ok; }
    QString InputBox(const QString&, const QString&) override { return sought; }
};

// The program with the branch open and that user before it.
class OpenProgram
{
public:
    OpenProgram()
    {
        InstallHandlers(P);
        P.Branch.HomeDir = Home().Path();
        P.Form1.Load();
        P.Form8->List1.ListIndex = 0;
        OpenSelectedBranch(P);
    }

private:
    NoScreen windows_;
    User user_;
    NoEvents loop_;
    Screen screen_{12000, 9000};
    NoClipboard clipboard_;
    NoPrinter printer_;
    NoProcesses processes_;

public:
    Program P{Platform{windows_, user_, loop_, screen_, clipboard_, printer_, processes_, Home().Path()}};
};

Program& LargeProgram()
{
    static auto* program = new OpenProgram;
    return program->P;
}

void SearchWordWithoutHit(benchmark::State& state)
{
    Program& p = LargeProgram();
    for (auto _ : state)
        SearchByWord(p, p.Scratch, p.Loop);
}

// A statement of the engine alone on the same file.
class BareStatement
{
public:
    explicit BareStatement(const QByteArray& sql)
    {
        sqlite3_open_v2((Home().Branch() + u"LfgDat_A.mdb").toUtf8().constData(), &database_, SQLITE_OPEN_READONLY,
                        nullptr);
        if (sqlite3_prepare_v2(database_, sql.constData(), -1, &Rows, nullptr) != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(database_));
    }
    ~BareStatement()
    {
        sqlite3_finalize(Rows);
        sqlite3_close(database_);
    }
    BareStatement(const BareStatement&) = delete;
    BareStatement& operator=(const BareStatement&) = delete;

    sqlite3_stmt* Rows = nullptr;

private:
    sqlite3* database_ = nullptr;
};

void SearchWordBare(benchmark::State& state)
{
    const QStringList fields =
        u"FatherRec MotherRec Surname Forename Nationality BirthDate BirthPlace Spouse Children Education Profession "
        u"Deceased BirthCertificate MarriageCertificate DeathCertificate Notes Medical Maiden PrevChildren Partner "
        u"Wedding WedDate"_s.split(u' ');
    const QString condition = u" LIKE '%"_s + sought + u"%'";
    static BareStatement search(
        QString(u"SELECT rowid FROM Tree99 WHERE " + fields.join(QString(condition + u" OR ")) + condition).toUtf8());
    for (auto _ : state) {
        if (sqlite3_step(search.Rows) == SQLITE_ROW)
            state.SkipWithError("the word was found");
        sqlite3_reset(search.Rows);
    }
}

void WriteTextFile(benchmark::State& state)
{
    Program& p = LargeProgram();
    for (auto _ : state) {
        WriteDatabaseText(p);
        // So that no previous generation is kept, which would be a second file.
        state.PauseTiming();
        QFile::remove(Home().Branch() + u"LfgDat_A.txt");
        state.ResumeTiming();
    }
}

// The same bytes, put together without any of the program's means.
QByteArray ReportByHand(sqlite3_stmt* rows)
{
    static const char* const labels[] = {"     ANCESTRAL RECORD ",
                                         "\r\nSurname:        ",
                                         "ForeNames:      ",
                                         "Maiden Name:    ",
                                         "Gender:         ",
                                         "Nationality:    ",
                                         "Fathers Record: ",
                                         "Mothers Record: ",
                                         "Birth date:     ",
                                         "Birth Place:    ",
                                         "Spouse:         ",
                                         "Children:       ",
                                         "Partner:        ",
                                         "Wedding Place:  ",
                                         "Wedding Date:   ",
                                         "Prev.Children:  ",
                                         "Education:      ",
                                         "Profession:     ",
                                         "Deceased:       ",
                                         "Birth Cert.     ",
                                         "Marriage Cert:  ",
                                         "Death Cert:     ",
                                         "Notes(1):       \r\n        ",
                                         "Notes(2):      \r\n        "};
    QByteArray text;
    int column = 0;
    for (const char* label : labels) {
        text += label;
        text += QByteArrayView(reinterpret_cast<const char*>(sqlite3_column_text(rows, column)),
                               sqlite3_column_bytes(rows, column));
        text += column < 22 ? "\r\n" : " \r\n";
        ++column;
    }
    text += "\r\n";
    return text;
}

void WriteTextBare(benchmark::State& state)
{
    static BareStatement table(
        "SELECT File, Surname, Forename, Maiden, Gender, Nationality, FatherRec, MotherRec, BirthDate, "
        "BirthPlace, Spouse, Children, Partner, Wedding, WedDate, PrevChildren, Education, Profession, "
        "Deceased, BirthCertificate, MarriageCertificate, DeathCertificate, Medical, Notes "
        "FROM Tree99");
    const QString path = Home().Path() + u"bare.txt";
    for (auto _ : state) {
        // Whole or not at all, and flushed, as a report is.
        QSaveFile file(path);
        if (!file.open(QFile::WriteOnly))
            state.SkipWithError("the file can't be written");
        while (sqlite3_step(table.Rows) == SQLITE_ROW)
            file.write(ReportByHand(table.Rows));
        if (!file.commit())
            state.SkipWithError("the file can't be written");
        sqlite3_reset(table.Rows);
    }
    static const bool isTheSame = [&path] {
        Program& p = LargeProgram();
        WriteDatabaseText(p);
        return p.Files.Read(path) == p.Files.Read(Home().Branch() + u"LfgDat_A.txt");
    }();
    if (!isTheSame)
        state.SkipWithError("the two files differ");
}

BENCHMARK(SearchWordWithoutHit)->Apply(ShortRuns<30>);
BENCHMARK(SearchWordBare)->Apply(ShortRuns<30>);
BENCHMARK(WriteTextFile)->Apply(ShortRuns<20>);
BENCHMARK(WriteTextBare)->Apply(ShortRuns<20>);

} // namespace
} // namespace lineforge::bench
