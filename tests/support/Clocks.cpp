#include "support/Clocks.h"

#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace
{
using std::chrono::nanoseconds;

constexpr nanoseconds firstHour = std::chrono::hours(24) * 365 * 54;

thread_local bool isStopped = false;
thread_local nanoseconds hour;      // since 1970
thread_local nanoseconds sinceBoot; // what clocks of time that passes tell

bool TellsTheHour(clockid_t clock)
{
    return clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE;
}

bool TellsTimePassed(clockid_t clock)
{
    return clock == CLOCK_MONOTONIC || clock == CLOCK_MONOTONIC_COARSE || clock == CLOCK_MONOTONIC_RAW ||
           clock == CLOCK_BOOTTIME;
}

timespec ToTime(nanoseconds time)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
    return {seconds.count(), (time - seconds).count()};
}

nanoseconds MachineTime(clockid_t clock)
{
    timespec time{};
    syscall(SYS_clock_gettime, clock, &time);
    return std::chrono::seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}
} // namespace

// Both stand before the C library's own, for the toolkit as well.
extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (isStopped && TellsTheHour(clock))
        *time = ToTime(hour);
    else if (isStopped && TellsTimePassed(clock))
        *time = ToTime(sinceBoot);
    else
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    return 0;
}

extern "C" int gettimeofday(timeval* time, void*) noexcept
{
    constexpr int nanosecondsAMicrosecond = 1000;
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    *time = {now.tv_sec, now.tv_nsec / nanosecondsAMicrosecond};
    return 0;
}

namespace lineforge
{

HeldClocks::HeldClocks()
{
    hour = MachineTime(CLOCK_REALTIME);
    sinceBoot = MachineTime(CLOCK_MONOTONIC);
    isStopped = true;
}

HeldClocks::~HeldClocks()
{
    isStopped = false;
}

void HeldClocks::LetPass(std::chrono::milliseconds time)
{
    LetTimePass(time);
}

void StopClocks()
{
    // Long past by every clock of the machine: whoever waits for a moment of it waits for nothing.
    sinceBoot = std::chrono::seconds(1);
    hour = firstHour + sinceBoot;
    isStopped = true;
}

void LetTimePass(std::chrono::milliseconds time)
{
    hour += time;
    sinceBoot += time;
}

} // namespace lineforge
