#include "platform/Database.h"

#include "platform/FileIdentity.h"
#include "platform/RuntimeError.h"
#include "platform/Text.h"

#include <QFileInfo>

#include <algorithm>
#include <sqlite3.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int busyMilliseconds = 2000;

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

QString PathOf(sqlite3* database)
{
    return QString::fromUtf8(sqlite3_db_filename(database, "main"));
}

int CollateSameText(void*, int lengthA, const void* a, int lengthB, const void* b)
{
    return CompareText(QByteArrayView(static_cast<const char*>(a), lengthA),
                       QByteArrayView(static_cast<const char*>(b), lengthB));
}
} // namespace

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

QByteArray Statement::ColumnName(int column) const
{
    return sqlite3_column_name(statement_, column);
}

std::int64_t Statement::Integer(int column) const
{
    return sqlite3_column_int64(statement_, column);
}

QByteArrayView Statement::Text(int column) const
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return text ? QByteArrayView(text, sqlite3_column_bytes(statement_, column)) : QByteArrayView();
}

Database::Database(const FileSystem& files, const QString& path)
{
    const QString file = files.Resolve(path);
    if (!QFileInfo(file).isFile())
        throw RuntimeError(ErrorNumber::DatabaseNotFound, file);
    if (files.GetAttr(file) & FileSystem::ReadOnly)
        throw RuntimeError(ErrorNumber::DatabaseReadOnly, file);
    const FileIdentity identity = IdentityOf(file);
    device_ = identity.Device;
    inode_ = identity.File;

    try {
        // One thread alone uses it, so that the engine need not take a lock at each call.
        constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
        if (sqlite3_open_v2(file.toUtf8().constData(), &handle_, flags, nullptr) != SQLITE_OK)
            throw RuntimeError(NumberOfRefusal(handle_), file);
        if (sqlite3_db_readonly(handle_, "main") == 1)
            throw RuntimeError(ErrorNumber::DatabaseReadOnly, file);
        sqlite3_busy_timeout(handle_, busyMilliseconds);
        sqlite3_create_collation(handle_, "SAMETEXT", SQLITE_UTF8, nullptr, CollateSameText);
        // The engine looks into a file no sooner than it must.
        Prepare("PRAGMA schema_version")->Step();
    } catch (...) {
        sqlite3_close(handle_);
        throw;
    }
}

Database::~Database()
{
    sqlite3_close_v2(handle_);
}

std::unique_ptr<Statement> Database::Prepare(const QByteArray& sql) const
{
    return std::make_unique<Statement>(handle_, sql);
}

QString Database::Path() const
{
    return PathOf(handle_);
}

std::int64_t Database::Changes() const
{
    return sqlite3_total_changes64(handle_);
}

bool Database::IsStill(const QString& path) const
{
    const FileIdentity identity = IdentityOf(path);
    return identity.File != 0 && identity.Device == device_ && identity.File == inode_;
}

void Database::NoteRow(std::int64_t row)
{
    highestRow_ = std::max(highestRow_, row);
}

std::int64_t Database::NewRowNumber(const QByteArray& table)
{
    const auto highest = Prepare("SELECT max(rowid) FROM " + table);
    if (highest->Step())
        highestRow_ = std::max(highestRow_, highest->Integer(0));
    return ++highestRow_;
}

std::shared_ptr<Database> Databases::Open(const FileSystem& files, const QString& path)
{
    const QString file = files.Resolve(path);
    std::weak_ptr<Database>& known = open_[file];
    if (auto open = known.lock(); open && open->IsStill(file))
        return open;
    auto opened = std::make_shared<Database>(files, file);
    known = opened;
    return opened;
}

} // namespace lineforge
