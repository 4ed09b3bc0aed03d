#include "platform/files/MemoryFile.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/FileRefusal.h"

#include <sys/mman.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

MemoryFile::MemoryFile()
{
    const int descriptor = memfd_create("lineforge", MFD_CLOEXEC);
    if (descriptor < 0 || !file_.open(descriptor, QFile::ReadOnly, QFile::AutoCloseHandle))
        Refuse(ErrorNumber::DeviceIo, u"a file in memory"_s);
}

QString MemoryFile::Path() const
{
    return u"/proc/self/fd/%1"_s.arg(file_.handle());
}

QByteArray MemoryFile::Bytes() const
{
    QFile file(Path());
    if (!file.open(QFile::ReadOnly))
        Refuse(file);
    return file.readAll();
}

} // namespace lineforge
