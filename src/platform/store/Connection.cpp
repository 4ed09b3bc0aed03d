#include "platform/store/Connection.h"

#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/files/FileIdentity.h"
#include "platform/files/FileRefusal.h"
#include "platform/store/OtherPrograms.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <sqlite3.h>
#include <utility>

namespace lineforge
{

namespace
{
int CollateSameText(void*, int lengthA, const void* a, int lengthB, const void* b)
{
    return CompareText(QByteArrayView(static_cast<const char*>(a), lengthA),
                       QByteArrayView(static_cast<const char*>(b), lengthB));
}
} // namespace

Connection::Connection(const FileSystem& files, const QString& path, std::shared_ptr<OtherPrograms> others,
                       int milliseconds)
    : patience_(milliseconds), others_(others ? std::move(others) : std::make_shared<OtherPrograms>()),
      path_(files.Resolve(path))
{
    Open();
}

Connection::~Connection()
{
    sqlite3_close_v2(handle_);
}

void Connection::Open()
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
    RequireTables(fresh);

    failed.dismiss();
    // Its statements may still be in use; it goes with the last of them.
    sqlite3_close_v2(std::exchange(handle_, fresh));
    device_ = identity.Device;
    inode_ = identity.File;
    ++opening_;
}

// Whoever reads a table by the places of its fields would read others.
void Connection::RequireTables(sqlite3* fresh) const
{
    for (const auto& [table, fields] : required_)
        if (Statement(fresh, "SELECT * FROM " + table).ColumnNames() != fields)
            throw RuntimeError(ErrorNumber::TableNotFound, path_);
}

std::unique_ptr<Statement> Connection::Prepare(const QByteArray& sql) const
{
    return std::make_unique<Statement>(handle_, sql);
}

std::int64_t Connection::Changes() const
{
    return changesBefore_ + sqlite3_total_changes64(handle_);
}

void Connection::BePatient(int milliseconds)
{
    patience_ = milliseconds;
    sqlite3_busy_timeout(handle_, milliseconds);
}

bool Connection::IsStillThere() const
{
    const FileIdentity identity = IdentityOf(path_);
    return identity.File != 0 && identity.Device == device_ && identity.File == inode_;
}

bool Connection::MayComeBack() const
{
    return QFileInfo(QFileInfo(path_).path()).isDir();
}

void Connection::FollowFile()
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

void Connection::FollowUsableFile()
{
    try {
        FollowFile();
    } catch (const RuntimeError& refusal) {
        if (refusal.Number == ErrorNumber::DatabaseBusy)
            throw;
    }
}

Transaction::Transaction(Connection& connection) : connection_(connection)
{
    connection.FollowUsableFile();
    if (!connection.IsStillThere())
        throw RuntimeError(connection.MayComeBack() ? ErrorNumber::DatabaseBusy : ErrorNumber::DatabaseNotFound,
                           connection.Path());
    connection.Prepare("BEGIN IMMEDIATE")->Step();
}

Transaction::~Transaction()
{
    if (!isOpen_)
        return;
    // A failure may have taken it back already.
    try {
        connection_.Prepare("ROLLBACK")->Step();
    } catch (const RuntimeError&) {
    }
}

void Transaction::Commit()
{
    connection_.Prepare("COMMIT")->Step();
    isOpen_ = false;
}

} // namespace lineforge
