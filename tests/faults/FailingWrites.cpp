#include "faults/FailingWrites.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <climits>
#include <string>
#include <string_view>
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
    int Seen = 0;
};

Plan& ThePlan()
{
    static Plan plan;
    return plan;
}

bool StandsBelow(int descriptor, std::string_view directory)
{
    std::array<char, PATH_MAX> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t length = readlink(link.c_str(), path.data(), path.size());
    return length > 0 && std::string_view(path.data(), static_cast<std::size_t>(length)).starts_with(directory);
}

// Whether this is a write that is to be refused.
bool Fails(int descriptor)
{
    Plan& plan = ThePlan();
    if (plan.Directory.empty() || !StandsBelow(descriptor, plan.Directory))
        return false;
    ++plan.Seen;
    return plan.Kind == Fault::OneWrite ? plan.Seen == plan.Number : plan.Seen >= plan.Number;
}

template <class... Arguments>
ssize_t Written(int descriptor, long call, Arguments... arguments)
{
    if (Fails(descriptor)) {
        errno = ENOSPC;
        return -1;
    }
    return syscall(call, arguments...);
}

int Flushed(int descriptor, long call)
{
    if (Fails(descriptor)) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(call, descriptor));
}
} // namespace

FailingWrites::FailingWrites(const QString& directory, int number, Fault fault)
{
    ThePlan() = {QFile::encodeName(directory).toStdString() + '/', number, fault, 0};
}

FailingWrites::~FailingWrites()
{
    ThePlan() = {};
}

bool FailingWrites::HaveBegun() const
{
    return ThePlan().Seen >= ThePlan().Number;
}

} // namespace lineforge

// The program's own stand before those of the system's library, for all libraries that it is linked with.
extern "C" {

[[gnu::visibility("default")]] ssize_t write(int descriptor, const void* bytes, size_t size)
{
    return lineforge::Written(descriptor, SYS_write, descriptor, bytes, size);
}

[[gnu::visibility("default")]] ssize_t pwrite(int descriptor, const void* bytes, size_t size, off_t at)
{
    return lineforge::Written(descriptor, SYS_pwrite64, descriptor, bytes, size, at);
}

[[gnu::visibility("default")]] ssize_t pwrite64(int descriptor, const void* bytes, size_t size, off64_t at)
{
    return lineforge::Written(descriptor, SYS_pwrite64, descriptor, bytes, size, at);
}

[[gnu::visibility("default")]] ssize_t copy_file_range(int from, off64_t* fromAt, int to, off64_t* toAt, size_t size,
                                                       unsigned flags)
{
    return lineforge::Written(to, SYS_copy_file_range, from, fromAt, to, toAt, size, flags);
}

[[gnu::visibility("default")]] int fsync(int descriptor)
{
    return lineforge::Flushed(descriptor, SYS_fsync);
}

[[gnu::visibility("default")]] int fdatasync(int descriptor)
{
    return lineforge::Flushed(descriptor, SYS_fdatasync);
}

[[gnu::visibility("default")]] int syncfs(int descriptor)
{
    return lineforge::Flushed(descriptor, SYS_syncfs);
}
}
