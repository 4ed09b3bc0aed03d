#include "platform/files/DiskFlush.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/FileRefusal.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace lineforge
{

namespace
{
// Some disks know no such thing.
bool IsFlushed(int (*flush)(int), int descriptor)
{
    return flush(descriptor) == 0 || errno == EINVAL;
}

// A directory that may be written to but not be read is left to the system.
void FlushThrough(int (*flush)(int), const QString& directory)
{
    const int descriptor = open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    const bool isFlushed = IsFlushed(flush, descriptor);
    close(descriptor);
    if (!isFlushed)
        Refuse(ErrorNumber::DeviceIo, directory);
}
} // namespace

void FlushContent(QFileDevice& file)
{
    if (!file.flush() || !IsFlushed(fsync, file.handle()))
        Refuse(file);
}

void FlushName(const QString& path)
{
    FlushThrough(fsync, QFileInfo(path).path());
}

void FlushDisk(const QString& directory)
{
    FlushThrough(syncfs, directory);
}

} // namespace lineforge
