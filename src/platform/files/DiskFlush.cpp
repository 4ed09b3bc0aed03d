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
bool IsFlushed(int descriptor)
{
    return fsync(descriptor) == 0 || errno == EINVAL;
}
} // namespace

void FlushContent(QFileDevice& file)
{
    if (!file.flush() || !IsFlushed(file.handle()))
        Refuse(file);
}

// A directory that may be written to but not be read is left to the system.
void FlushName(const QString& path)
{
    const QString directory = QFileInfo(path).path();
    const int descriptor = open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    const bool isFlushed = IsFlushed(descriptor);
    close(descriptor);
    if (!isFlushed)
        Refuse(ErrorNumber::DeviceIo, directory);
}

} // namespace lineforge
