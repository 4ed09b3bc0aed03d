#include "check/DatabaseCheck.h"

#include "check/UntouchedDatabase.h"
#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/store/DataRef.h"
#include "platform/store/DatabaseFormat.h"
#include "platform/store/Fields.h"
#include "platform/store/JetStreamFormat.h"
#include "program/branch/BranchPaths.h"

#include <QFile>
#include <QHash>

#include <algorithm>

namespace lineforge::check
{

using namespace Qt::StringLiterals;

namespace
{
DatabaseFormat FormatOfFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return DatabaseFormat::Unknown;
    return FormatOf(file.read(databaseFormatBytes).toStdString());
}

void TellDamage(Home& home, const QString& path, const UntouchedDatabase& database)
{
    const auto damage = database.Prepare("PRAGMA integrity_check(20)");
    while (damage->Step())
        if (const QString words = FromUtf8(damage->Text(0)); words != u"ok")
            home.Add(Kind::Database, path, u"damaged: "_s + words);
}

// Rows by their own numbers is what the program asks for; a view has none, nor has every table.
bool RequireTable(Home& home, const QString& path, const UntouchedDatabase& database)
{
    const auto table = database.Prepare(
        "SELECT 1 FROM pragma_table_list WHERE schema = 'main' AND name = 'Tree99' COLLATE NOCASE AND type = 'table' "
        "AND wr = 0");
    if (table->Step())
        return true;
    home.Add(Kind::Database, path, u"there is no table of records in it"_s);
    return false;
}

QStringList FieldsOf(const UntouchedDatabase& database)
{
    const auto fields = database.Prepare("SELECT name FROM pragma_table_info('Tree99')");
    QStringList names;
    while (fields->Step())
        names += FromUtf8(fields->Text(0));
    return names;
}

// Whether the records can be told from each other by what there is.
bool RequireFields(Home& home, const QString& path, const QStringList& fields)
{
    for (const std::string_view field : jetstream::fields)
        if (const auto name = QString::fromLatin1(field.data(), static_cast<qsizetype>(field.size()));
            !fields.contains(name, Qt::CaseInsensitive))
            home.Add(Kind::Database, path, u"the records have no field "_s + name);
    return fields.contains(Field::File.toString(), Qt::CaseInsensitive);
}

// A field that isn't there is empty in every record.
QByteArray Selected(const QStringList& fields, QStringView field)
{
    return fields.contains(field, Qt::CaseInsensitive) ? field.toUtf8() : QByteArray("NULL");
}

std::vector<Record> RecordsOf(const UntouchedDatabase& database, const QStringList& fields)
{
    QByteArray sql = "SELECT File";
    for (const QStringView field : linkFields)
        sql += ", " + Selected(fields, field);
    const auto rows = database.Prepare(sql + " FROM Tree99 ORDER BY rowid");
    std::vector<Record> records;
    while (rows->Step()) {
        Record record{FromUtf8(rows->Text(0)), {}};
        for (int link = 1; QString & number : record.Links)
            number = FromUtf8(rows->Text(link++));
        records.push_back(std::move(record));
    }
    return records;
}

// False, and the reason told, when the file is another's than ours.
bool RequireOurs(Home& home, const QString& path)
{
    switch (FormatOfFile(path)) {
    case DatabaseFormat::Ours:
        return true;
    case DatabaseFormat::Jet3:
    case DatabaseFormat::Jet4:
        home.Add(Kind::OldDatabase, path,
                 u"of an older installation: it is converted when the branch is opened, and its records weren't "
                 u"looked at"_s);
        return false;
    case DatabaseFormat::Newer:
        home.Add(Kind::Database, path, u"the form of this database is too new to be converted"_s);
        return false;
    case DatabaseFormat::Unknown:
        break;
    }
    home.Add(Kind::Database, path, u"this is no database of records"_s);
    return false;
}

void ReadRecords(Home& home, const QString& path, Branch& branch)
{
    const UntouchedDatabase database(path, home.Patience);
    TellDamage(home, path, database);
    if (!RequireTable(home, path, database))
        return;
    const QStringList fields = FieldsOf(database);
    if (RequireFields(home, path, fields))
        branch.Records = RecordsOf(database, fields);
}

// Nothing for a number as it should be.
QString FaultOf(const DataRef& number, int times, const QString& letter)
{
    if (times > 1)
        return times == 2 ? u"more than one record has this number"_s : QString();
    if (!number.IsWhole())
        return u"the number isn't a letter and three digits"_s;
    if (!number.IsOf(letter) && !number.IsOf(AppendedLetter))
        return u"the number has the letter of another branch"_s;
    return {};
}

void CheckNumbers(Home& home, const QString& path, Branch& branch)
{
    QHash<QString, int> times;
    for (int row = 1; const Record& record : *branch.Records) {
        if (record.Number.isEmpty())
            home.Add(Kind::RecordNumber, path, u"the record in row %1 has no number"_s.arg(row));
        else if (const QString fault =
                     FaultOf(DataRef(record.Number), ++times[Folded(record.Number)], BranchLetter(branch.Name));
                 !fault.isEmpty())
            home.Add(Kind::RecordNumber, path, fault, record.Number);
        ++row;
    }
    branch.Numbers = QSet<QString>(times.keyBegin(), times.keyEnd());
}

void TellRefusal(Home& home, const QString& path, const RuntimeError& refusal)
{
    switch (refusal.Number) {
    case ErrorNumber::NotADatabase:
        return home.Add(Kind::Database, path, u"damaged: its records can't be read"_s);
    case ErrorNumber::DatabaseBusy:
        return home.Add(Kind::Unread, path, u"another program is writing to this database"_s);
    default:
        return home.Add(Kind::Unread, path, u"this database can't be read: "_s + refusal.Text);
    }
}
} // namespace

void CheckDatabase(Home& home, Branch& branch)
{
    const QString path = home.Files.Resolve(DatabasePath(branch.Path));
    if (!Home::Stands(path)) {
        home.Add(Kind::Database, path, u"the database isn't there"_s);
        return;
    }
    if (!home.RequireReadable(path) || !RequireOurs(home, path))
        return;
    try {
        ReadRecords(home, path, branch);
    } catch (const RuntimeError& refusal) {
        branch.Records.reset();
        TellRefusal(home, path, refusal);
    }
    if (!branch.Records)
        return;
    CheckNumbers(home, path, branch);
    home.Report.Seen.Records += static_cast<int>(branch.Records->size());
}

} // namespace lineforge::check
