#include "Database.h"

#include "Failure.h"
#include "Files.h"

#include <QFile>

#include <memory>
#include <sqlite3.h>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

struct Close {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

using DatabasePtr = std::unique_ptr<sqlite3, Close>;
using StatementPtr = std::unique_ptr<sqlite3_stmt, Close>;

void Require(int result, int expected, sqlite3* database, const QString& doing)
{
    if (result != expected) {
        throw Failure(u"%1: %2"_s.arg(doing, QString::fromUtf8(sqlite3_errmsg(database))));
    }
}

DatabasePtr OpenFresh(const QString& path)
{
    if (QFile::exists(path) && !QFile::remove(path)) {
        throw Failure(u"cannot replace %1"_s.arg(path));
    }
    sqlite3* raw = nullptr;
    const int result =
        sqlite3_open_v2(path.toUtf8().constData(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    DatabasePtr database(raw);
    Require(result, SQLITE_OK, database.get(), u"cannot make %1"_s.arg(path));
    return database;
}

void Execute(sqlite3* database, const QString& sql)
{
    Require(sqlite3_exec(database, sql.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK, database,
            u"the database refused a statement"_s);
}

StatementPtr PrepareInsert(sqlite3* database)
{
    QStringList names;
    QStringList marks;
    for (const FieldSpec& spec : fieldSpecs) {
        names.append(spec.name.toString());
        marks.append(u"?"_s);
    }
    const QString sql = u"INSERT INTO Tree99 (%1) VALUES (%2)"_s.arg(names.join(u','), marks.join(u','));
    sqlite3_stmt* raw = nullptr;
    const int result = sqlite3_prepare_v2(database, sql.toUtf8().constData(), -1, &raw, nullptr);
    StatementPtr statement(raw);
    Require(result, SQLITE_OK, database, u"the schema does not fit the records"_s);
    return statement;
}

void Insert(sqlite3* database, sqlite3_stmt* statement, const Record& record)
{
    int position = 0;
    for (const QString& value : record.values) {
        ++position;
        const QByteArray text = value.toUtf8();
        const int result = value.isEmpty() ? sqlite3_bind_null(statement, position)
                                           : sqlite3_bind_text(statement, position, text.constData(),
                                                               static_cast<int>(text.size()), SQLITE_TRANSIENT);
        Require(result, SQLITE_OK, database, u"cannot bind a value"_s);
    }
    Require(sqlite3_step(statement), SQLITE_DONE, database, u"cannot store %1"_s.arg(record.Value(Field::File)));
    Require(sqlite3_reset(statement), SQLITE_OK, database, u"cannot go on storing"_s);
}

void Fill(const DatabasePtr& database, const QString& schema, const QList<Record>& records)
{
    // The home is carried about as plain files, so no write-ahead log may be left beside the database.
    Execute(database.get(), u"PRAGMA journal_mode = DELETE"_s);
    Execute(database.get(), schema);
    const StatementPtr insert = PrepareInsert(database.get());
    Execute(database.get(), u"BEGIN"_s);
    for (const Record& record : records) {
        Insert(database.get(), insert.get(), record);
    }
    Execute(database.get(), u"COMMIT"_s);
}

} // namespace

void CreateDatabase(const QString& schemaPath, const QString& path)
{
    CreateDatabase(schemaPath, path, {});
}

void CreateDatabase(const QString& schemaPath, const QString& path, const QList<Record>& records)
{
    const QString schema = ReadLines(schemaPath).join(u'\n');
    try {
        Fill(OpenFresh(path), schema, records);
    } catch (const Failure&) {
        // Half a database would look like a finished one to the next build.
        QFile::remove(path);
        throw;
    }
}

} // namespace lineforge::makehome
