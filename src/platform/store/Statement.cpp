#include "platform/store/Statement.h"

#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"

#include <sqlite3.h>

namespace lineforge
{

namespace
{
QString PathOf(sqlite3* database)
{
    return QString::fromUtf8(sqlite3_db_filename(database, "main"));
}
} // namespace

int NumberOfRefusal(sqlite3* database)
{
    switch (sqlite3_errcode(database) & 0xFF) {
    case SQLITE_FULL:
        return ErrorNumber::DiskFull;
    case SQLITE_NOMEM:
        return ErrorNumber::OutOfMemory;
    case SQLITE_READONLY:
        return ErrorNumber::DatabaseReadOnly;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return ErrorNumber::DatabaseBusy;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return ErrorNumber::NotADatabase;
    case SQLITE_CANTOPEN:
        return ErrorNumber::DatabaseNotFound;
    case SQLITE_ERROR:
        return ErrorNumber::TableNotFound;
    default:
        return ErrorNumber::DeviceIo;
    }
}

QByteArray Quoted(QByteArray name)
{
    return '"' + name.replace('"', "\"\"") + '"';
}

Statement::Statement(sqlite3* database, const QByteArray& sql) : database_(database)
{
    if (sqlite3_prepare_v3(database, sql.constData(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                           &statement_, nullptr) != SQLITE_OK)
        Fail();
}

Statement::~Statement()
{
    sqlite3_finalize(statement_);
}

void Statement::Fail() const
{
    throw RuntimeError(NumberOfRefusal(database_), PathOf(database_));
}

void Statement::Bind(int parameter, std::int64_t value)
{
    if (sqlite3_bind_int64(statement_, parameter + 1, value) != SQLITE_OK)
        Fail();
}

void Statement::Bind(int parameter, QByteArrayView utf8)
{
    // The engine takes no address for NULL, but a text without characters may have none.
    const char* text = utf8.isNull() ? "" : utf8.data();
    if (sqlite3_bind_text64(statement_, parameter + 1, text, static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT,
                            SQLITE_UTF8) != SQLITE_OK)
        Fail();
}

void Statement::BindNull(int parameter)
{
    if (sqlite3_bind_null(statement_, parameter + 1) != SQLITE_OK)
        Fail();
}

bool Statement::Step()
{
    const int result = sqlite3_step(statement_);
    if (result == SQLITE_ROW)
        return true;
    if (result == SQLITE_DONE)
        return false;
    sqlite3_reset(statement_);
    Fail();
}

void Statement::Reset()
{
    sqlite3_reset(statement_);
}

int Statement::Columns() const
{
    return sqlite3_column_count(statement_);
}

std::vector<QString> Statement::ColumnNames() const
{
    std::vector<QString> names;
    for (int column = 0; column < Columns(); ++column)
        names.push_back(FromUtf8(sqlite3_column_name(statement_, column)));
    return names;
}

std::int64_t Statement::Integer(int column) const
{
    Q_ASSERT(column >= 0 && column < Columns());
    return sqlite3_column_int64(statement_, column);
}

QByteArrayView Statement::Text(int column) const
{
    Q_ASSERT(column >= 0 && column < Columns());
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return text ? QByteArrayView(text, sqlite3_column_bytes(statement_, column)) : QByteArrayView();
}

bool Statement::IsNull(int column) const
{
    Q_ASSERT(column >= 0 && column < Columns());
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

QByteArrayView Statement::Bytes(int column) const
{
    Q_ASSERT(column >= 0 && column < Columns());
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement_, column));
    return {bytes, sqlite3_column_bytes(statement_, column)};
}

} // namespace lineforge
