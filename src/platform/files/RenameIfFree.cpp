#include "platform/files/RenameIfFree.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace lineforge
{

bool RenameIfFree(const char* from, const char* to)
{
    if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return true;
    // Not every disk can promise it.
    struct stat standing {
    };
    return errno == EINVAL && lstat(to, &standing) != 0 && std::rename(from, to) == 0;
}

} // namespace lineforge
