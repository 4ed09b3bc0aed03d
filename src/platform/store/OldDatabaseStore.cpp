#include "platform/store/OldDatabaseStore.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/DiskFlush.h"
#include "platform/files/FileRefusal.h"
#include "platform/files/RenameIfFree.h"
#include "platform/store/Database.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
using Step = std::function<void()>;

constexpr qint64 blockBytes = 1 << 20;

// An open file, for what the toolkit has no words for.
class Handle
{
public:
    explicit Handle(const QString& path)
        : path_(path), descriptor_(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC))
    {
        if (descriptor_ < 0)
            Refuse(ErrorNumber::PathFileAccess, path_);
    }
    ~Handle() { close(descriptor_); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    // The lock goes with the process, however that ends. Some disks know no locks.
    void Lock() const
    {
        if (flock(descriptor_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
            Refuse(ErrorNumber::DatabaseBusy, path_);
    }

    void Sync() const
    {
        if (fsync(descriptor_) != 0)
            Refuse(errno == ENOSPC || errno == EDQUOT ? ErrorNumber::DiskFull : ErrorNumber::DeviceIo, path_);
    }

private:
    QString path_;
    int descriptor_;
};

// A file that nobody else knows of yet: it goes again unless it has been given its name.
class UnfinishedFile
{
public:
    // What a process has left there that was ended in the middle is in nobody's hands.
    explicit UnfinishedFile(const QString& finished) : finished_(finished), path_(finished + u".new"_s)
    {
        QFile::remove(path_);
        QFile::remove(path_ + u"-journal");
    }
    ~UnfinishedFile() { QFile::remove(path_); }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    const QString& Path() const { return path_; }

    // Everything has been written: it is on the disk, and then takes the name of whatever had it.
    void TakeName() const
    {
        Handle(path_).Sync();
        if (std::rename(QFile::encodeName(path_).constData(), QFile::encodeName(finished_).constData()) != 0)
            Refuse(ErrorNumber::PathFileAccess, finished_);
    }
    // The same, where nothing has the name.
    void TakeFreeName() const
    {
        Handle(path_).Sync();
        if (!RenameIfFree(QFile::encodeName(path_).constData(), QFile::encodeName(finished_).constData()))
            Refuse(ErrorNumber::FileAlreadyExists, finished_);
    }

private:
    QString finished_;
    QString path_;
};

QByteArray FieldList(QByteArrayView separator)
{
    QByteArray list;
    for (const std::string_view field : jetstream::fields) {
        if (!list.isEmpty())
            list += separator;
        list.append(field.data(), static_cast<qsizetype>(field.size()));
    }
    return list;
}

void WriteRow(Statement& insertion, const JetRows::Row& row)
{
    for (int field = 0; const QByteArrayView cell : row) {
        if (cell.isNull())
            insertion.BindNull(field++);
        else
            insertion.Bind(field++, cell);
    }
    insertion.Step();
    insertion.Reset();
}

void WriteDatabase(const FileSystem& files, const QString& path, const JetRows& rows, const Step& meanwhile)
{
    // The engine takes an empty file for an empty database.
    QFile file(path);
    if (!file.open(QFile::WriteOnly | QFile::NewOnly))
        Refuse(file);
    file.close();

    const Database database(files, path);
    // What is cut short here is thrown away as a whole, and made durable as a whole.
    for (const char* sql : {"PRAGMA journal_mode = OFF", "PRAGMA synchronous = OFF", "BEGIN"})
        database.Prepare(sql)->Step();
    database.Prepare("CREATE TABLE Tree99 (" + FieldList(" TEXT, ") + " TEXT)")->Step();
    const auto insertion = database.Prepare("INSERT INTO Tree99 VALUES (?" +
                                            QByteArray(",?").repeated(jetstream::fields.size() - 1) + ")");
    for (std::size_t row = 0; row < rows.Count(); ++row) {
        meanwhile();
        WriteRow(*insertion, rows.At(row));
    }
    database.Prepare("COMMIT")->Step();
}

bool IsSame(const Statement& stored, const JetRows::Row& row)
{
    return std::ranges::all_of(row, [&, field = 0](QByteArrayView cell) mutable {
        const QByteArrayView text = stored.Text(field++);
        return text.isNull() == cell.isNull() && text == cell;
    });
}

// Reads back what has been written, as the program will.
void RequireRows(const FileSystem& files, const QString& path, const JetRows& rows, const Step& meanwhile)
{
    const Database database(files, path);
    const auto stored = database.Prepare("SELECT " + FieldList(", ") + " FROM Tree99 ORDER BY rowid");
    for (std::size_t row = 0; row < rows.Count(); ++row) {
        meanwhile();
        if (!stored->Step() || !IsSame(*stored, rows.At(row)))
            Refuse(ErrorNumber::DeviceIo, path);
    }
    if (stored->Step())
        Refuse(ErrorNumber::DeviceIo, path);
}

// Somebody may have written to it, or have put another file in its place.
void RequireSame(const FileIdentity& file)
{
    if (IdentityOf(file.Path) != file)
        Refuse(ErrorNumber::DatabaseBusy, file.Path);
}

void OpenOrRefuse(QFile& file, QFile::OpenMode mode)
{
    if (!file.open(mode))
        Refuse(file);
}

bool HaveSameBytes(const QString& pathA, const QString& pathB)
{
    QFile a(pathA);
    QFile b(pathB);
    // Opening what is no file may wait for ever, and a link may lead to the old file itself.
    if (!QFileInfo(pathB).isFile() || QFileInfo(pathB).isSymLink() || !a.open(QFile::ReadOnly) ||
        !b.open(QFile::ReadOnly) || a.size() != b.size())
        return false;
    while (!a.atEnd()) {
        const QByteArray block = a.read(blockBytes);
        if (block.isEmpty() || block != b.read(blockBytes))
            return false;
    }
    return true;
}

void CopyBytes(const QString& from, const QString& to, const Step& meanwhile)
{
    QFile input(from);
    QFile output(to);
    OpenOrRefuse(input, QFile::ReadOnly);
    OpenOrRefuse(output, QFile::WriteOnly | QFile::NewOnly);
    while (!input.atEnd()) {
        meanwhile();
        const QByteArray block = input.read(blockBytes);
        if (block.isEmpty())
            Refuse(input);
        if (output.write(block) != block.size())
            Refuse(output);
    }
    if (!output.flush())
        Refuse(output);
    output.setPermissions(input.permissions());
    output.setFileTime(QFileInfo(from).lastModified(), QFileDevice::FileModificationTime);
}

// A copy, not a second name of the same file: it stays what it is whoever writes to the other one.
void Keep(const QString& oldDatabase, const QString& kept, const Step& meanwhile)
{
    const UnfinishedFile copy(kept);
    CopyBytes(oldDatabase, copy.Path(), meanwhile);
    meanwhile();
    copy.TakeFreeName();
}
} // namespace

QString NameOfKept(const QString& oldDatabase)
{
    const QFileInfo file(oldDatabase);
    const QString stem = file.path() + PathSeparator + file.completeBaseName();
    QString kept = stem + u".jet"_s;
    const auto stands = [](const QString& name) { return QFileInfo::exists(name) || QFileInfo(name).isSymLink(); };
    // The same bytes are there already when the process was ended after it had kept them.
    for (int number = 2; stands(kept) && !HaveSameBytes(oldDatabase, kept); ++number)
        kept = stem + u'_' + QString::number(number) + u".jet"_s;
    return kept;
}

void ReplaceOldDatabase(const FileSystem& files, const FileIdentity& oldDatabase, const JetRows& rows,
                        const Step& meanwhile)
{
    const QString& path = oldDatabase.Path;
    RequireReplaceable(path);
    const Handle original(path);
    original.Lock();
    RequireSame(oldDatabase);

    const UnfinishedFile fresh(path);
    WriteDatabase(files, fresh.Path(), rows, meanwhile);
    RequireRows(files, fresh.Path(), rows, meanwhile);
    QFile::setPermissions(fresh.Path(), QFile::permissions(path));

    const QString kept = NameOfKept(path);
    const bool wasKept = QFileInfo::exists(kept);
    if (!wasKept)
        Keep(path, kept, meanwhile);
    auto undone = qScopeGuard([&] {
        if (!wasKept)
            QFile::remove(kept);
    });
    // However it came there, it is on the disk before the old one loses its name.
    Handle(kept).Sync();
    FlushName(kept);
    meanwhile();
    RequireSame(oldDatabase);
    // The engine would take what it once left beside a database of this name for a change of the new one.
    for (const QStringView leftover : {u"-journal", u"-wal", u"-shm"})
        QFile::remove(path + leftover);
    fresh.TakeName();
    undone.dismiss();
    // What is written to the new file from now on must not be lost with its name.
    FlushName(path);
}

} // namespace lineforge
