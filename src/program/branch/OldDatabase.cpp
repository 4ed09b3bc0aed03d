#include "program/branch/OldDatabase.h"

#include "platform/files/FileIdentity.h"
#include "platform/files/FileRefusal.h"
#include "platform/store/DatabaseFormat.h"
#include "platform/store/OldDatabaseReader.h"
#include "platform/store/OldDatabaseStore.h"
#include "platform/store/OtherPrograms.h"
#include "program/branch/BranchPaths.h"
#include "program/ui/Meanwhile.h"

#include <QFile>
#include <QFileInfo>

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
bool IsInBranch(const DatabaseOpening& opening, const QString& file)
{
    return IsBranchDirectory(QFileInfo(file).path(), opening.Files.Resolve(opening.HomeDir) + PathSeparator);
}

// Whether an older installation wrote it, and it may become a database of ours.
bool IsToBeTaken(const DatabaseOpening& opening, const QString& file, DatabaseFormat format)
{
    const bool isOld = format == DatabaseFormat::Jet3 || format == DatabaseFormat::Jet4;
    return isOld && OwnerCanWrite(file) && IsInBranch(opening, file);
}

// Not where the program was built without the library.
bool HasReader(const DatabaseOpening& opening)
{
    return QFileInfo(OldDatabaseReader(opening.ExecutableDirectory)).isExecutable();
}

JetRows ReadRows(const DatabaseOpening& opening, const QString& file)
{
    if (!HasReader(opening))
        Refuse(ErrorNumber::NotADatabase, file + u'\n' + noReader);
    Meanwhile meanwhile(opening.Loop);
    std::optional<JetRows> rows = ReadOldDatabase(OldDatabaseReader(opening.ExecutableDirectory), file, readingTime,
                                                  [&meanwhile] { meanwhile.KeepPainted(); });
    if (!rows || (rows->HasLosses() && rows->Count() == 0))
        Refuse(ErrorNumber::NotADatabase, file);
    return std::move(*rows);
}

void WarnIfInUse(const DatabaseOpening& opening, const QString& file)
{
    const QString lock =
        opening.Files.Dir(QFileInfo(file).path() + PathSeparator + QFileInfo(file).completeBaseName() + u".ldb");
    if (!lock.isEmpty())
        opening.Prompts.MsgBox(u"Old Database may be in use"_s,
                               lock + u" shows that another program may have this database open.\n"
                                      u"What that program writes from now on is not taken over.",
                               Buttons::Information);
}

void RequireConsentToLosses(const DatabaseOpening& opening, const QString& file, const JetRows& rows)
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
    if (opening.Prompts.MsgBox(u"Old Database is damaged"_s, text, Buttons::QuestionYesNoDefaultNo) != Answer::Yes)
        Refuse(ErrorNumber::NotADatabase, file);
}

void Convert(const DatabaseOpening& opening, const FileIdentity& file)
{
    RequireReplaceable(file.Path);
    const JetRows rows = ReadRows(opening, file.Path);
    WarnIfInUse(opening, file.Path);
    RequireConsentToLosses(opening, file.Path, rows);
    Meanwhile meanwhile(opening.Loop);
    ReplaceOldDatabase(opening.Files, file, rows, [&meanwhile] { meanwhile.KeepPainted(); });
}
} // namespace

void ConvertIfOld(const DatabaseOpening& opening, const QString& path, OldDatabaseUse use)
{
    const QString file = opening.Files.Resolve(path);
    const DatabaseFormat format = FormatOfFile(file);
    if (format == DatabaseFormat::Newer)
        Refuse(ErrorNumber::NotADatabase, file);
    if (!IsToBeTaken(opening, file, format))
        return;
    const FileIdentity identity = IdentityOf(file);
    if (use == OldDatabaseUse::Caption && opening.RefusedDatabases.contains(identity))
        Refuse(ErrorNumber::NotADatabase, file);
    try {
        // Each time as it stands then.
        opening.Databases.Others().Patiently(file, [&](int) { Convert(opening, IdentityOf(file)); });
    } catch (const RuntimeError&) {
        opening.RefusedDatabases.insert(identity);
        throw;
    }
}

void TellDatabaseRefused(const DatabaseOpening& opening, const QString& path, const RuntimeError& refusal)
{
    const QString file = opening.Files.Resolve(path);
    const bool lacksReader = refusal.Number == ErrorNumber::NotADatabase &&
                             IsToBeTaken(opening, file, FormatOfFile(file)) && !HasReader(opening);
    if (refusal.IsTold)
        return;
    opening.Prompts.MsgBox(u"Read Only or Incorrect Database"_s,
                           lacksReader ? noReader : u"Cannot open this database"_s, Buttons::Information);
}

} // namespace lineforge
