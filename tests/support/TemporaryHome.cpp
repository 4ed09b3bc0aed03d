#include "support/TemporaryHome.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace lineforge
{

namespace
{
constexpr QFileDevice::Permissions writeBits =
    QFileDevice::WriteOwner | QFileDevice::WriteUser | QFileDevice::WriteGroup | QFileDevice::WriteOther;

QDirIterator EverythingBelow(const QString& path)
{
    return QDirIterator(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
}

void GiveBackDirectories(const QString& path)
{
    QFile::setPermissions(path, QFile::permissions(path) | QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                    QFileDevice::ExeOwner);
    for (const QFileInfo& below : QDir(path).entryInfoList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot))
        GiveBackDirectories(below.filePath());
}

QByteArray AllBytes(const QString& path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        ADD_FAILURE() << "can't read " << qUtf8Printable(path);
    return file.readAll();
}
} // namespace

QStringList Differences(const Tree& before, const Tree& after)
{
    QStringList found;
    for (auto entry = before.begin(); entry != before.end(); ++entry) {
        if (!after.contains(entry.key()))
            found.push_back(QStringLiteral("gone: ") + entry.key());
        else if (after.value(entry.key()) != entry.value())
            found.push_back(QStringLiteral("changed: ") + entry.key());
    }
    for (const QString& path : after.keys())
        if (!before.contains(path))
            found.push_back(QStringLiteral("new: ") + path);
    found.sort();
    return found;
}

TemporaryHome::TemporaryHome()
{
    if (!directory_.isValid())
        ADD_FAILURE() << "no temporary directory: " << qUtf8Printable(directory_.errorString());
}

TemporaryHome::~TemporaryHome()
{
    // What a test has locked can't be removed by everybody.
    GiveBackDirectories(directory_.path());
}

QString TemporaryHome::Path(QStringView relative) const
{
    return directory_.filePath(relative.toString());
}

QString TemporaryHome::WriteFile(QStringView relative, const QByteArray& bytes)
{
    const QString path = Path(relative);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        ADD_FAILURE() << "can't write " << qUtf8Printable(path);
    return path;
}

QString TemporaryHome::MakeDirectory(QStringView relative)
{
    const QString path = Path(relative);
    if (!QDir().mkpath(path))
        ADD_FAILURE() << "can't make " << qUtf8Printable(path);
    return path;
}

QByteArray TemporaryHome::ReadFile(QStringView relative) const
{
    return AllBytes(Path(relative));
}

bool TemporaryHome::Exists(QStringView relative) const
{
    return QFileInfo::exists(Path(relative));
}

void TemporaryHome::MakeReadOnly(QStringView relative)
{
    const QString path = Path(relative);
    if (!QFile::setPermissions(path, QFile::permissions(path) & ~writeBits))
        ADD_FAILURE() << "can't lock " << qUtf8Printable(path);
}

void TemporaryHome::MakeWritable(QStringView relative)
{
    const QString path = Path(relative);
    if (!QFile::setPermissions(path, QFile::permissions(path) | QFileDevice::WriteOwner))
        ADD_FAILURE() << "can't unlock " << qUtf8Printable(path);
}

Tree TemporaryHome::Snapshot() const
{
    Tree tree;
    QDirIterator entries = EverythingBelow(Path());
    while (entries.hasNext()) {
        const QString path = entries.next();
        tree.insert(path.sliced(Path().size() + 1),
                    entries.fileInfo().isDir() ? QByteArrayLiteral("<dir>") : AllBytes(path));
    }
    return tree;
}

} // namespace lineforge
