#include "program/branch/MakeDirectory.h"

#include <QFileInfo>

namespace lineforge
{

// The number alone doesn't tell: a file of that name and a place that can't be written have the same.
bool MakeDirectory(Program& p, const QString& directory)
{
    try {
        p.Files.MkDir(directory);
        return true;
    } catch (const RuntimeError&) {
        if (!QFileInfo(p.Files.Resolve(directory)).isDir())
            throw;
        return false;
    }
}

} // namespace lineforge
