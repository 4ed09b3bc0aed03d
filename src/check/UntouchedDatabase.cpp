#include "check/UntouchedDatabase.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/FileRefusal.h"
#include "platform/store/DatabaseFormat.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <sqlite3.h>

namespace lineforge::check
{

using namespace Qt::StringLiterals;

namespace
{
constexpr QStringView changesBeside[] = {u"-journal", u"-wal"};

// In that mode the engine makes files beside a database even to read it.
bool HasFilesBeside(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) && KeepsChangesBeside(file.read(databaseFormatBytes).toStdString());
}

void Copy(const QString& from, const QString& to)
{
    QFile source(from);
    QFile copy(to);
    if (!source.open(QFile::ReadOnly))
        Refuse(source);
    if (!copy.open(QFile::WriteOnly))
        Refuse(copy);
    constexpr qint64 block = 1 << 20;
    while (!source.atEnd())
        if (const QByteArray bytes = source.read(block); bytes.isEmpty() || copy.write(bytes) != bytes.size())
            Refuse(bytes.isEmpty() ? source : copy);
    if (!copy.flush())
        Refuse(copy);
}
} // namespace

void UntouchedDatabase::Closing::operator()(sqlite3* handle) const
{
    sqlite3_close_v2(handle);
}

UntouchedDatabase::UntouchedDatabase(const QString& file, std::chrono::milliseconds patience) : patience_(patience)
{
    if (QFileInfo::exists(file + u"-wal"))
        OpenCopy(file);
    else if (HasFilesBeside(file))
        // Without such a file beside it nobody has it open, so that it can't change while it is read without a lock.
        Open(file, "mode=ro&immutable=1");
    else
        OpenInPlace(file);
}

std::unique_ptr<Statement> UntouchedDatabase::Prepare(const QByteArray& sql) const
{
    return std::make_unique<Statement>(handle_.get(), sql);
}

void UntouchedDatabase::Open(const QString& file, const QByteArray& how)
{
    const QByteArray name = "file:" + QUrl::toPercentEncoding(file, "/") + '?' + how;
    sqlite3* handle = nullptr;
    constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX;
    const int result = sqlite3_open_v2(name.constData(), &handle, flags, nullptr);
    handle_.reset(handle);
    if (result != SQLITE_OK)
        throw RuntimeError(ErrorNumber::DatabaseNotFound, file);
    sqlite3_busy_timeout(handle, static_cast<int>(patience_.count()));
    // The file may be anybody's: what its schema brings along runs with no rights.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    // The engine looks into a file no sooner than it must.
    Prepare("PRAGMA schema_version")->Step();
}

void UntouchedDatabase::OpenInPlace(const QString& file)
{
    try {
        Open(file, "mode=ro");
    } catch (const RuntimeError& error) {
        // Half a change stands in it, which only a writer may take back.
        if (error.Number != ErrorNumber::DatabaseReadOnly)
            throw;
        OpenCopy(file);
    }
}

void UntouchedDatabase::OpenCopy(const QString& file)
{
    copy_.emplace();
    if (!copy_->isValid())
        Refuse(ErrorNumber::PathFileAccess, copy_->path());
    const QString copy = copy_->filePath(u"copy.mdb"_s);
    Copy(file, copy);
    for (const QStringView ending : changesBeside)
        if (QFileInfo::exists(file + ending))
            Copy(file + ending, copy + ending);
    Open(copy, "mode=rw");
}

} // namespace lineforge::check
