#include "faults/FailingDisk.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace lineforge
{

namespace
{
struct Plan {
    std::string Directory; // empty while nothing is to fail
    int Number = 0;
    Fault Kind{};
    Refused What{};
    int Seen = 0;
};

Plan& ThePlan()
{
    static Plan plan;
    return plan;
}

std::string PathOf(int descriptor)
{
    std::array<char, PATH_MAX> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t length = readlink(link.c_str(), path.data(), path.size());
    return {path.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
}

std::string PathOf(int directory, const char* path)
{
    if (path[0] == '/')
        return path;
    std::array<char, PATH_MAX> current{};
    const std::string base =
        directory != AT_FDCWD ? PathOf(directory) : (getcwd(current.data(), current.size()) ? current.data() : "");
    return base + '/' + path;
}

// Whether this is one of the times that are to be refused. The path is asked for only where it matters.
template <class Path>
bool Fails(Refused what, const Path& path)
{
    Plan& plan = ThePlan();
    if (plan.Directory.empty() || plan.What != what || !path().starts_with(plan.Directory))
        return false;
    ++plan.Seen;
    return plan.Kind == Fault::OneTime ? plan.Seen == plan.Number : plan.Seen >= plan.Number;
}

int Refuse(int error)
{
    errno = error;
    return -1;
}

// `call` is handed how many bytes it may write.
template <class Call>
ssize_t Written(int descriptor, std::size_t size, const Call& call)
{
    const auto path = [&] { return PathOf(descriptor); };
    if (Fails(Refused::Content, path))
        return Refuse(ENOSPC);
    const bool isHalf = size > 1 && Fails(Refused::Halves, path);
    return call(isHalf ? size / 2 : size);
}

int Flushed(int descriptor, long call)
{
    if (Fails(Refused::Content, [&] { return PathOf(descriptor); }))
        return Refuse(EIO);
    return static_cast<int>(syscall(call, descriptor));
}

template <class Path, class... Arguments>
int Named(const Path& path, long call, Arguments... arguments)
{
    if (Fails(Refused::Names, path))
        return Refuse(EROFS);
    return static_cast<int>(syscall(call, arguments...));
}

int Opened(int directory, const char* path, int flags, mode_t mode)
{
    if ((flags & O_ACCMODE) == O_RDONLY && (flags & (O_CREAT | O_TRUNC)) == 0)
        return static_cast<int>(syscall(SYS_openat, directory, path, flags, mode));
    return Named([&] { return PathOf(directory, path); }, SYS_openat, directory, path, flags, mode);
}

int Removed(int directory, const char* path, int flags)
{
    return Named([&] { return PathOf(directory, path); }, SYS_unlinkat, directory, path, flags);
}

int Renamed(int from, const char* before, int to, const char* after, unsigned flags)
{
    return Named([&] { return PathOf(to, after); }, SYS_renameat2, from, before, to, after, flags);
}

int Linked(int from, const char* before, int to, const char* after, int flags)
{
    return Named([&] { return PathOf(to, after); }, SYS_linkat, from, before, to, after, flags);
}

bool IsDirectory(const char* path)
{
    struct stat entry {
    };
    return lstat(path, &entry) == 0 && S_ISDIR(entry.st_mode);
}

int Cut(int descriptor, off_t size)
{
    return Named([&] { return PathOf(descriptor); }, SYS_ftruncate, descriptor, size);
}

int Cut(const char* path, off_t size)
{
    return Named([&] { return PathOf(AT_FDCWD, path); }, SYS_truncate, path, size);
}

// It is there only when a file may be made.
mode_t ModeIn(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

int MadeUnique(char* pattern, int flags)
{
    const std::string_view path = pattern;
    char* const letters = pattern + path.size() - 6;
    for (int number = 0; number < 1'000'000; ++number) {
        const std::string digits = std::to_string(1'000'000 + number);
        digits.copy(letters, 6, 1);
        const int file = Opened(AT_FDCWD, pattern, flags | O_RDWR | O_CREAT | O_EXCL, 0600);
        if (file >= 0 || errno != EEXIST)
            return file;
    }
    return -1;
}
} // namespace

FailingDisk::FailingDisk(const QString& directory, int number, Fault fault, Refused refused)
{
    ThePlan() = {QFile::encodeName(directory).toStdString() + '/', number, fault, refused, 0};
}

FailingDisk::~FailingDisk()
{
    ThePlan() = {};
}

bool FailingDisk::HasBegun() const
{
    return ThePlan().Seen >= ThePlan().Number;
}

} // namespace lineforge

// The program's own stand before those of the system's library, for all libraries that it is linked with.
using namespace lineforge;

extern "C" {

[[gnu::visibility("default")]] ssize_t write(int descriptor, const void* bytes, size_t size)
{
    return Written(descriptor, size, [&](size_t some) { return syscall(SYS_write, descriptor, bytes, some); });
}

[[gnu::visibility("default")]] ssize_t pwrite(int descriptor, const void* bytes, size_t size, off_t at)
{
    return Written(descriptor, size, [&](size_t some) { return syscall(SYS_pwrite64, descriptor, bytes, some, at); });
}

[[gnu::visibility("default")]] ssize_t pwrite64(int descriptor, const void* bytes, size_t size, off64_t at)
{
    return Written(descriptor, size, [&](size_t some) { return syscall(SYS_pwrite64, descriptor, bytes, some, at); });
}

[[gnu::visibility("default")]] ssize_t copy_file_range(int from, off64_t* fromAt, int to, off64_t* toAt, size_t size,
                                                       unsigned flags)
{
    return Written(to, size,
                   [&](size_t some) { return syscall(SYS_copy_file_range, from, fromAt, to, toAt, some, flags); });
}

[[gnu::visibility("default")]] int fsync(int descriptor)
{
    return Flushed(descriptor, SYS_fsync);
}

[[gnu::visibility("default")]] int fdatasync(int descriptor)
{
    return Flushed(descriptor, SYS_fdatasync);
}

[[gnu::visibility("default")]] int syncfs(int descriptor)
{
    return Flushed(descriptor, SYS_syncfs);
}

[[gnu::visibility("default")]] int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return Opened(AT_FDCWD, path, flags, mode);
}

[[gnu::visibility("default")]] int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return Opened(AT_FDCWD, path, flags, mode);
}

[[gnu::visibility("default")]] int openat(int directory, const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return Opened(directory, path, flags, mode);
}

[[gnu::visibility("default")]] int openat64(int directory, const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return Opened(directory, path, flags, mode);
}

[[gnu::visibility("default")]] int mkostemp(char* pattern, int flags)
{
    return MadeUnique(pattern, flags);
}

[[gnu::visibility("default")]] int mkostemp64(char* pattern, int flags)
{
    return MadeUnique(pattern, flags);
}

[[gnu::visibility("default")]] int mkdir(const char* path, mode_t mode)
{
    return Named([&] { return PathOf(AT_FDCWD, path); }, SYS_mkdirat, AT_FDCWD, path, mode);
}

[[gnu::visibility("default")]] int rmdir(const char* path)
{
    return Removed(AT_FDCWD, path, AT_REMOVEDIR);
}

[[gnu::visibility("default")]] int unlink(const char* path)
{
    return Removed(AT_FDCWD, path, 0);
}

[[gnu::visibility("default")]] int unlinkat(int directory, const char* path, int flags)
{
    return Removed(directory, path, flags);
}

[[gnu::visibility("default")]] int remove(const char* path)
{
    return Removed(AT_FDCWD, path, IsDirectory(path) ? AT_REMOVEDIR : 0);
}

[[gnu::visibility("default")]] int rename(const char* before, const char* after)
{
    return Renamed(AT_FDCWD, before, AT_FDCWD, after, 0);
}

[[gnu::visibility("default")]] int renameat(int from, const char* before, int to, const char* after)
{
    return Renamed(from, before, to, after, 0);
}

[[gnu::visibility("default")]] int renameat2(int from, const char* before, int to, const char* after, unsigned flags)
{
    return Renamed(from, before, to, after, flags);
}

[[gnu::visibility("default")]] int link(const char* before, const char* after)
{
    return Linked(AT_FDCWD, before, AT_FDCWD, after, 0);
}

[[gnu::visibility("default")]] int linkat(int from, const char* before, int to, const char* after, int flags)
{
    return Linked(from, before, to, after, flags);
}

[[gnu::visibility("default")]] int ftruncate(int descriptor, off_t size)
{
    return Cut(descriptor, size);
}

[[gnu::visibility("default")]] int ftruncate64(int descriptor, off64_t size)
{
    return Cut(descriptor, size);
}

[[gnu::visibility("default")]] int truncate(const char* path, off_t size)
{
    return Cut(path, size);
}

[[gnu::visibility("default")]] int truncate64(const char* path, off64_t size)
{
    return Cut(path, size);
}
}
