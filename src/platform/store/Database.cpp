#include "platform/store/Database.h"

#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/files/FileIdentity.h"
#include "platform/files/FileRefusal.h"
#include "platform/store/OtherPrograms.h"
#include "platform/store/TableRows.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <sqlite3.h>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
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

bool Statement::IsNull(int column) const
{
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

QByteArrayView Statement::Bytes(int column) const
{
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement_, column));
    return {bytes, sqlite3_column_bytes(statement_, column)};
}

Database::Database(const FileSystem& files, const QString& path, std::shared_ptr<OtherPrograms> others,
                   std::shared_ptr<KnownTables> tables, int milliseconds)
    : patience_(milliseconds), others_(others ? std::move(others) : std::make_shared<OtherPrograms>()),
      tables_(tables ? std::move(tables) : std::make_shared<KnownTables>()), path_(files.Resolve(path))
{
    Open();
}

Database::~Database()
{
    for (const auto& [name, rows] : *tables_)
        rows->Detach();
    sqlite3_close_v2(handle_);
}

void Database::Open()
{
    if (!QFileInfo(path_).isFile())
        throw RuntimeError(ErrorNumber::DatabaseNotFound, path_);
    if (!OwnerCanWrite(path_))
        throw RuntimeError(ErrorNumber::DatabaseReadOnly, path_);
    const FileIdentity identity = IdentityOf(path_);
    sqlite3* fresh = nullptr;
    auto failed = qScopeGuard([&fresh] { sqlite3_close(fresh); });

    // One thread alone uses it, so that the engine need not take a lock at each call.
    constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    if (sqlite3_open_v2(path_.toUtf8().constData(), &fresh, flags, nullptr) != SQLITE_OK)
        throw RuntimeError(NumberOfRefusal(fresh), path_);
    if (sqlite3_db_readonly(fresh, "main") == 1)
        throw RuntimeError(ErrorNumber::DatabaseReadOnly, path_);
    sqlite3_busy_timeout(fresh, patience_);
    // A commit is a commit once the journal has lost its name on the disk, too.
    Statement(fresh, "PRAGMA synchronous = EXTRA").Step();
    sqlite3_create_collation(fresh, "SAMETEXT", SQLITE_UTF8, nullptr, CollateSameText);
    // The engine looks into a file no sooner than it must.
    Statement(fresh, "PRAGMA schema_version").Step();

    failed.dismiss();
    // Its statements may still be in use; it goes with the last of them.
    sqlite3_close_v2(std::exchange(handle_, fresh));
    device_ = identity.Device;
    inode_ = identity.File;
    ++opening_;
}

std::unique_ptr<Statement> Database::Prepare(const QByteArray& sql) const
{
    return std::make_unique<Statement>(handle_, sql);
}

std::int64_t Database::Changes() const
{
    return changesBefore_ + sqlite3_total_changes64(handle_);
}

void Database::BePatient(int milliseconds)
{
    patience_ = milliseconds;
    sqlite3_busy_timeout(handle_, milliseconds);
}

bool Database::IsStillThere() const
{
    const FileIdentity identity = IdentityOf(path_);
    return identity.File != 0 && identity.Device == device_ && identity.File == inode_;
}

void Database::FollowFile()
{
    const bool isInTransaction = sqlite3_get_autocommit(handle_) == 0;
    if (isInTransaction || IsStillThere() || IdentityOf(path_).File == 0)
        return;
    // Nothing that was read before holds.
    const std::int64_t changes = Changes() + 1;
    Open();
    changesBefore_ = changes;
    others_->NoteReplaced(path_);
}

TableRows& Database::Rows(const QByteArray& table)
{
    const auto known = tables_->find(table);
    if (known != tables_->end() && known->second->IsAttached())
        return *known->second;
    auto rows = known != tables_->end() ? known->second : std::make_shared<TableRows>(table);
    rows->Attach(*this);
    (*tables_)[table] = rows;
    return *rows;
}

Transaction::Transaction(Database& database) : database_(database)
{
    database.FollowFile();
    if (!database.IsStillThere())
        throw RuntimeError(ErrorNumber::DatabaseNotFound, database.Path());
    database.Prepare("BEGIN IMMEDIATE")->Step();
}

Transaction::~Transaction()
{
    if (!isOpen_)
        return;
    // A failure may have taken it back already.
    try {
        database_.Prepare("ROLLBACK")->Step();
    } catch (const RuntimeError&) {
    }
}

void Transaction::Commit()
{
    database_.Prepare("COMMIT")->Step();
    isOpen_ = false;
}

Databases::Databases() : others_(std::make_shared<OtherPrograms>()) {}

Databases::~Databases() = default;

std::shared_ptr<Database> Databases::Open(const FileSystem& files, const QString& path)
{
    const QString file = files.Resolve(path);
    Known& known = known_[file];
    if (auto open = known.Open.lock()) {
        others_->Patiently(file, [&](int milliseconds) {
            open->BePatient(milliseconds);
            open->FollowFile();
        });
        if (!open->IsStillThere())
            throw RuntimeError(ErrorNumber::DatabaseNotFound, file);
        return open;
    }
    if (!known.Tables)
        known.Tables = std::make_shared<KnownTables>();
    auto opened = others_->Patiently(file, [&](int milliseconds) {
        return std::make_shared<Database>(files, file, others_, known.Tables, milliseconds);
    });
    known.Open = opened;
    return opened;
}

} // namespace lineforge
