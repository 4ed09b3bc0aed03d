#include "platform/files/FileRefusal.h"

#include "platform/base/RuntimeError.h"

#include <QFileInfo>

#include <cerrno>

namespace lineforge
{

namespace
{
QString ParentOf(const QString& path)
{
    return QFileInfo(path).path();
}
} // namespace

void Refuse(int number, const QString& path)
{
    throw RuntimeError(number, path);
}

void Refuse(const QFileDevice& file)
{
    Refuse(NumberOfFailure(file), file.fileName());
}

bool OwnerCanWrite(const QString& path)
{
    return QFileInfo(path).permissions().testFlag(QFileDevice::WriteOwner);
}

void RequireWritableParent(const QString& path)
{
    const QString parent = ParentOf(path);
    if (!QFileInfo(parent).isDir())
        Refuse(ErrorNumber::PathNotFound, parent);
    if (!OwnerCanWrite(parent))
        Refuse(ErrorNumber::PathFileAccess, path);
}

void RequireFile(const QString& path)
{
    if (!QFileInfo(path).isFile())
        Refuse(ErrorNumber::FileNotFound, path);
}

void RequireReplaceable(const QString& path)
{
    RequireWritableParent(path);
    const QFileInfo standing(path);
    if (standing.isDir() || (standing.exists() && !OwnerCanWrite(path)))
        Refuse(ErrorNumber::PathFileAccess, path);
}

int NumberOfFailure(const QFileDevice& file)
{
    if (errno == ENOSPC || errno == EDQUOT)
        return ErrorNumber::DiskFull;
    // The toolkit calls it a failure to open like any other.
    if (errno == EACCES || errno == EPERM)
        return ErrorNumber::PermissionDenied;
    return file.error() == QFileDevice::OpenError ? ErrorNumber::PathFileAccess : ErrorNumber::DeviceIo;
}

} // namespace lineforge
