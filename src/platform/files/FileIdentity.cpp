#include "platform/files/FileIdentity.h"

#include <QFile>
#include <QHash>

#include <sys/stat.h>

namespace lineforge
{

FileIdentity IdentityOf(const QString& path)
{
    constexpr qint64 nanosecondsASecond = 1'000'000'000;
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {path};
    return {path, status.st_dev, status.st_ino, status.st_mtim.tv_sec * nanosecondsASecond + status.st_mtim.tv_nsec,
            status.st_size};
}

size_t qHash(const FileIdentity& file, size_t seed)
{
    return qHashMulti(seed, file.Path, static_cast<quint64>(file.File), file.ModifiedNanoseconds, file.Bytes);
}

} // namespace lineforge
