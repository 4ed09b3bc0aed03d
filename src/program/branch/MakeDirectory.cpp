#include "program/branch/MakeDirectory.h"

#include "platform/base/RuntimeError.h"

#include <QFileInfo>

namespace lineforge
{

// The number alone doesn't tell: a file of that name and a place that can't be written have the same.
bool MakeDirectory(FileSystem& files, const QString& directory)
{
    try {
        files.MkDir(directory);
        return true;
    } catch (const RuntimeError&) {
        if (!QFileInfo(files.Resolve(directory)).isDir())
            throw;
        return false;
    }
}

} // namespace lineforge
