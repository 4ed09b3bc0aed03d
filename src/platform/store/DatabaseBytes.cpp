#include "platform/store/DatabaseBytes.h"

#include "platform/base/RuntimeError.h"
#include "platform/store/DatabaseFormat.h"
#include "platform/store/OtherPrograms.h"
#include "platform/store/Statement.h"

#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <sqlite3.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct Closing {
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
};
using Handle = std::unique_ptr<sqlite3, Closing>;

Handle Open(const QByteArray& name)
{
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(name.constData(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    Handle handle(opened);
    if (result != SQLITE_OK)
        throw RuntimeError(NumberOfRefusal(opened), QString::fromUtf8(name));
    return handle;
}

// Of the file itself, by the engine's own handle: the system takes all locks of a process on a file away when one of
// its handles is closed.
QByteArray BytesOfFile(sqlite3* handle, const QString& path)
{
    sqlite3_file* file = nullptr;
    sqlite3_int64 size = 0;
    if (sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK || !file->pMethods ||
        file->pMethods->xFileSize(file, &size) != SQLITE_OK)
        throw RuntimeError(ErrorNumber::DeviceIo, path);
    QByteArray bytes(size, Qt::Uninitialized);
    constexpr sqlite3_int64 block = 1 << 20;
    for (sqlite3_int64 at = 0; at < size; at += block)
        if (file->pMethods->xRead(file, bytes.data() + at, static_cast<int>(std::min(block, size - at)), at) !=
            SQLITE_OK)
            throw RuntimeError(ErrorNumber::DeviceIo, path);
    return bytes;
}

// With those that stand in another file.
QByteArray BytesOfAll(sqlite3* handle, const QString& path)
{
    const Handle copy = Open(":memory:");
    sqlite3_backup* const backup = sqlite3_backup_init(copy.get(), "main", handle, "main");
    const bool isWhole = backup && sqlite3_backup_step(backup, -1) == SQLITE_DONE;
    sqlite3_backup_finish(backup);
    sqlite3_int64 size = 0;
    const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> bytes(
        isWhole ? sqlite3_serialize(copy.get(), "main", &size, 0) : nullptr, sqlite3_free);
    if (!bytes)
        throw RuntimeError(ErrorNumber::DeviceIo, path);
    return {reinterpret_cast<const char*>(bytes.get()), static_cast<qsizetype>(size)};
}

QByteArray ReadWhileStill(const QString& path, int milliseconds)
{
    const Handle handle = Open(path.toUtf8());
    sqlite3_busy_timeout(handle.get(), milliseconds);
    // From the first look into it on nobody else changes the file.
    Statement(handle.get(), "BEGIN").Step();
    Statement(handle.get(), "PRAGMA schema_version").Step();
    const QByteArray bytes = BytesOfFile(handle.get(), path);
    const std::string_view beginning(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return KeepsChangesBeside(beginning) ? BytesOfAll(handle.get(), path) : bytes;
}

bool HasChangesBeside(const QString& path)
{
    return std::ranges::any_of(ChangesBeside(path), [](const QString& file) { return QFileInfo::exists(file); });
}
} // namespace

std::optional<QByteArray> DatabaseBytes(OtherPrograms& others, const QString& path)
{
    // Opening something that is no file may wait for ever.
    if (!QFileInfo(path).isFile())
        return {};
    try {
        return others.Patiently(path, [&](int milliseconds) { return ReadWhileStill(path, milliseconds); });
    } catch (const RuntimeError& refusal) {
        if (refusal.Number == ErrorNumber::NotADatabase ||
            (refusal.Number != ErrorNumber::DatabaseBusy && !HasChangesBeside(path)))
            return {};
        throw;
    }
}

QStringList ChangesBeside(const QString& database)
{
    return {database + u"-journal"_s, database + u"-wal"_s, database + u"-shm"_s};
}

} // namespace lineforge
