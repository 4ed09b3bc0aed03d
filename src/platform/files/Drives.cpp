#include "platform/files/Drives.h"

#include <QDir>
#include <QStorageInfo>

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
bool IsBeneath(const QString& path, const QString& directory)
{
    return path == directory || path.startsWith(directory.endsWith(u'/') ? directory : QString(directory + u'/'));
}

// Where systems mount what belongs to themselves. What users plug in stands beneath /run/media on some of them.
bool BelongsToSystem(const QString& place)
{
    static const QStringList own{u"/boot"_s, u"/dev"_s, u"/etc"_s, u"/proc"_s,    u"/run"_s,
                                 u"/snap"_s, u"/sys"_s, u"/usr"_s, u"/var/lib"_s, u"/var/snap"_s};
    return !IsBeneath(place, u"/run/media"_s) &&
           std::ranges::any_of(own, [&](const QString& directory) { return IsBeneath(place, directory); });
}
} // namespace

QStringList Drives()
{
    QStringList drives{QDir::rootPath(), QDir::homePath()};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (const QString place = volume.rootPath();
            volume.isReady() && QDir(place).exists() && !BelongsToSystem(place))
            drives += place;
    drives.removeDuplicates();
    return drives;
}

QString DriveOf(const QString& path, const QStringList& drives)
{
    QString longest;
    for (const QString& drive : drives)
        if (IsBeneath(path, drive) && drive.size() > longest.size())
            longest = drive;
    return longest;
}

} // namespace lineforge
