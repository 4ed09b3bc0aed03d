#include "program/OldDatabase.h"

#include "platform/DatabaseFormat.h"
#include "platform/FileIdentity.h"
#include "platform/FileRefusal.h"
#include "program/BranchPaths.h"
#include "program/Meanwhile.h"
#include "program/OldDatabaseReader.h"
#include "program/OldDatabaseStore.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <chrono>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr std::chrono::seconds readingTime{30};

const QString noReader = QStringLiteral("This build can't read the databases of older installations.\n"
                                        "It was made without the library that reads them.");

DatabaseFormat FormatOfFile(const QString& file)
{
    // Opening what is no file may wait for ever.
    QFile database(file);
    if (!QFileInfo(file).isFile() || !database.open(QFile::ReadOnly))
        return DatabaseFormat::Unknown;
    return FormatOf(database.read(databaseFormatBytes).toStdString());
}

// An exported branch, or somebody's own file, stays what it is.
bool IsInBranch(const Program& p, const QString& file)
{
    return IsBranchDirectory(QFileInfo(file).path(), p.Files.Resolve(p.Branch.HomeDir) + PathSeparator);
}

// The files that could not be taken in this run, so that a map which shows their people doesn't ask at each drawing.
QSet<FileIdentity>& Refused()
{
    static QSet<FileIdentity> refused;
    return refused;
}

JetRows ReadRows(Program& p, const QString& file)
{
    const QString reader = OldDatabaseReader(p.ExecutableDirectory);
    if (!QFileInfo(reader).isExecutable())
        throw RuntimeError(ErrorNumber::NotADatabase, noReader);
    Meanwhile meanwhile(p);
    std::optional<JetRows> rows = ReadOldDatabase(reader, file, readingTime, [&meanwhile] { meanwhile.KeepPainted(); });
    if (!rows || (rows->HasLosses() && rows->Count() == 0))
        Refuse(ErrorNumber::NotADatabase);
    return std::move(*rows);
}

void WarnIfInUse(Program& p, const QString& file)
{
    const QString lock =
        p.Files.Dir(QFileInfo(file).path() + PathSeparator + QFileInfo(file).completeBaseName() + u".ldb");
    if (!lock.isEmpty())
        p.Prompts.MsgBox(u"Old Database may be in use"_s,
                         lock + u" shows that another program may have this database open.\n"
                                u"What that program writes from now on is not taken over.",
                         Buttons::Information);
}

void RequireConsentToLosses(Program& p, const QString& file, const JetRows& rows)
{
    if (!rows.HasLosses())
        return;
    const jetstream::Tally& tally = rows.Tally();
    const QString text =
        u"%1 of the %2 records can be read, and %3 of their fields can't.\n"
        u"Go on with what can be read? The database stays beside it, unchanged, as %4."_s.arg(tally.Rows)
            .arg(std::max(tally.Stated, tally.Rows + tally.BadRows))
            .arg(tally.BadCells)
            .arg(QFileInfo(NameOfKept(file)).fileName());
    if (p.Prompts.MsgBox(u"Old Database is damaged"_s, text, Buttons::QuestionYesNoDefaultNo) != Answer::Yes)
        Refuse(ErrorNumber::NotADatabase);
}

void Convert(Program& p, const FileIdentity& file)
{
    RequireReplaceable(file.Path);
    const JetRows rows = ReadRows(p, file.Path);
    WarnIfInUse(p, file.Path);
    RequireConsentToLosses(p, file.Path, rows);
    Meanwhile meanwhile(p);
    ReplaceOldDatabase(p.Files, file, rows, [&meanwhile] { meanwhile.KeepPainted(); });
}
} // namespace

void ConvertIfOld(Program& p, const QString& path, OldDatabaseUse use)
{
    const QString file = p.Files.Resolve(path);
    const DatabaseFormat format = FormatOfFile(file);
    if (format == DatabaseFormat::Newer)
        Refuse(ErrorNumber::NotADatabase);
    const bool isOld = format == DatabaseFormat::Jet3 || format == DatabaseFormat::Jet4;
    if (!isOld || !OwnerCanWrite(file) || !IsInBranch(p, file))
        return;
    const FileIdentity identity = IdentityOf(file);
    if (use == OldDatabaseUse::Caption && Refused().contains(identity))
        Refuse(ErrorNumber::NotADatabase);
    try {
        Convert(p, identity);
    } catch (const RuntimeError&) {
        Refused().insert(identity);
        throw;
    }
}

void TellDatabaseRefused(Program& p, const RuntimeError& refusal)
{
    const QString text = refusal.Text == noReader ? noReader : u"Cannot open this database"_s;
    p.Prompts.MsgBox(u"Read Only or Incorrect Database"_s, text, Buttons::Information);
}

} // namespace lineforge
