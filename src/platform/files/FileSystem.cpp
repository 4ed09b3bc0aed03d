#include "platform/files/FileSystem.h"

#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/files/DiskFlush.h"
#include "platform/files/FileRefusal.h"
#include "platform/files/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The entry of a directory that is spelt like `name`, case ignored; exact spelling first, empty for none.
QString EntryLike(const QString& directory, const QString& name)
{
    if (QFileInfo::exists(directory + PathSeparator + name))
        return name;
    const QStringList entries =
        QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    const auto found = std::ranges::find_if(entries, [&](const QString& entry) { return SameText(entry, name); });
    return found == entries.end() ? QString() : *found;
}

// Everything but the star and the question mark stands for itself, brackets too: they are common in names.
QRegularExpression PatternOf(const QString& name)
{
    QString pattern = QRegularExpression::escape(name);
    pattern.replace(u"\\*"_s, u".*"_s).replace(u"\\?"_s, u"."_s);
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::DotMatchesEverythingOption);
}

// Case decides only between names that are otherwise the same, so that every disk gives the same order.
bool ComesBefore(const QString& a, const QString& b)
{
    const int order = a.compare(b, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a < b;
}
} // namespace

FileSystem::FileSystem(QString currentDirectory) : currentDirectory_(std::move(currentDirectory)) {}

QString FileSystem::Resolve(const QString& path) const
{
    const QString absolute = QDir::cleanPath(QDir(currentDirectory_).absoluteFilePath(path));
    if (QFileInfo::exists(absolute))
        return absolute;

    QString resolved;
    for (const QString& part : absolute.split(PathSeparator, Qt::SkipEmptyParts)) {
        const QString entry = EntryLike(resolved.isEmpty() ? QString(PathSeparator) : resolved, part);
        resolved += PathSeparator + (entry.isEmpty() ? part : entry);
    }
    return resolved;
}

QStringList FileSystem::List(const QString& path, bool directories) const
{
    const qsizetype slash = path.lastIndexOf(PathSeparator);
    const QString pattern = path.sliced(slash + 1);
    const QString directory = slash < 0 ? currentDirectory_ : Resolve(path.first(slash + 1));
    QStringList names = QDir(directory).entryList(
        (directories ? QDir::Dirs : QDir::Files) | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    if (!pattern.isEmpty()) {
        const QRegularExpression fits = PatternOf(pattern);
        names.removeIf([&](const QString& name) { return !fits.match(name).hasMatch(); });
    }
    std::ranges::sort(names, ComesBefore);
    return names;
}

QStringList FileSystem::Files(const QString& path) const
{
    return List(path, false);
}

QStringList FileSystem::Directories(const QString& path) const
{
    return List(path, true);
}

QString FileSystem::Dir(const QString& path) const
{
    const bool isPattern = path.contains(u'*') || path.contains(u'?') || path.endsWith(PathSeparator);
    if (isPattern)
        return Files(path).value(0);
    const QFileInfo file(Resolve(path));
    return file.isFile() ? file.fileName() : QString();
}

bool FileSystem::LookUpGivesTail(const QString& path, int length) const
{
    return SameText(Dir(path), QStringView(path).right(length));
}

void FileSystem::FileCopy(const QString& source, const QString& destination) const
{
    const QString from = Resolve(source);
    const QString to = Resolve(destination);
    RequireFile(from);
    if (from == to)
        Refuse(ErrorNumber::PermissionDenied, to);
    RequireReplaceable(to);

    QFile input(from);
    QSaveFile output(to);
    if (!input.open(QFile::ReadOnly))
        Refuse(input);
    if (!output.open(QFile::WriteOnly))
        Refuse(output);
    constexpr qint64 block = 1 << 20;
    for (QByteArray bytes = input.read(block); !bytes.isEmpty(); bytes = input.read(block))
        if (output.write(bytes) != bytes.size())
            Refuse(output);
    if (input.error() != QFile::NoError)
        Refuse(input);
    // Told here, because a commit passes over what fails while it empties its buffers.
    FlushContent(output);
    output.setFileTime(QFileInfo(from).lastModified(), QFileDevice::FileModificationTime);
    PutInPlace(output);
}

void FileSystem::Kill(const QString& path) const
{
    const QString file = Resolve(path);
    RequireFile(file);
    RequireReplaceable(file);
    if (!QFile::remove(file))
        Refuse(ErrorNumber::PermissionDenied, file);
}

void FileSystem::Rename(const QString& from, const QString& to) const
{
    const QString source = Resolve(from);
    const QString destination = Resolve(to);
    RequireFile(source);
    if (QFileInfo::exists(destination))
        Refuse(ErrorNumber::FileAlreadyExists, destination);
    RequireWritableParent(source);
    RequireWritableParent(destination);
    if (!QFile::rename(source, destination))
        Refuse(ErrorNumber::PathFileAccess, destination);
    FlushName(destination);
}

void FileSystem::MkDir(const QString& path) const
{
    const QString directory = Resolve(path);
    if (QFileInfo::exists(directory))
        Refuse(ErrorNumber::PathFileAccess, directory);
    RequireWritableParent(directory);
    if (!QDir().mkdir(directory))
        Refuse(ErrorNumber::PathFileAccess, directory);
    FlushName(directory);
}

void FileSystem::RmDir(const QString& path) const
{
    const QString directory = Resolve(path);
    if (!QFileInfo(directory).isDir())
        Refuse(ErrorNumber::PathNotFound, directory);
    RequireWritableParent(directory);
    if (!QDir().rmdir(directory))
        Refuse(ErrorNumber::PathFileAccess, directory);
}

void FileSystem::ChDir(const QString& path)
{
    const QString directory = Resolve(path);
    if (!QFileInfo(directory).isDir())
        Refuse(ErrorNumber::PathNotFound, directory);
    currentDirectory_ = directory;
}

int FileSystem::GetAttr(const QString& path) const
{
    const QFileInfo entry(Resolve(path));
    if (!entry.exists())
        Refuse(ErrorNumber::FileNotFound, entry.filePath());
    return (OwnerCanWrite(entry.filePath()) ? 0 : ReadOnly) | (entry.isDir() ? Directory : 0);
}

void FileSystem::Replace(const QString& path, const QByteArray& bytes) const
{
    WriteWholeFile(Resolve(path), bytes);
}

QByteArray FileSystem::Read(const QString& path) const
{
    QFile file(Resolve(path));
    RequireFile(file.fileName());
    if (!file.open(QFile::ReadOnly))
        Refuse(file);
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        Refuse(file);
    return bytes;
}

} // namespace lineforge
