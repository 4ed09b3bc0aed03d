#include "jet/Limits.h"

#include <csignal>
#include <cstdlib>
#include <initializer_list>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace lineforge::jet
{

namespace
{
void Limit(decltype(RLIMIT_AS) resource, rlim_t most)
{
    const rlimit limit{most, most};
    setrlimit(resource, &limit);
}

#if defined(__SANITIZE_ADDRESS__)
// The sanitizer takes terabytes of addresses for its own use.
constexpr bool canLimitMemory = false;
#else
constexpr bool canLimitMemory = true;
#endif
} // namespace

void LimitProcess()
{
    constexpr rlim_t memoryBytes = rlim_t{512} << 20;
    constexpr rlim_t processorSeconds = 30;
    if (canLimitMemory)
        Limit(RLIMIT_AS, memoryBytes);
    Limit(RLIMIT_CPU, processorSeconds);
    Limit(RLIMIT_FSIZE, 0);
    Limit(RLIMIT_CORE, 0);
    // Nobody is left to read what is told once the program has gone.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (const char* name : {"MDBICONV", "MDB_JET3_CHARSET", "MDBOPTS", "MDBPATH"})
        unsetenv(name);
}

} // namespace lineforge::jet
