#include "monkey/SessionTime.h"

#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace
{
using std::chrono::nanoseconds;

thread_local bool isStopped = false;
// Long past by every clock of the machine: whoever waits for a moment of it waits for nothing.
thread_local nanoseconds sinceStart = std::chrono::seconds(1);
constexpr nanoseconds firstHour = std::chrono::hours(24) * 365 * 54; // since 1970

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
} // namespace

// Both stand before the C library's own, for the toolkit as well.
extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (isStopped && TellsTheHour(clock))
        *time = ToTime(firstHour + sinceStart);
    else if (isStopped && TellsTimePassed(clock))
        *time = ToTime(sinceStart);
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

namespace lineforge::monkey
{

void StopClocks()
{
    isStopped = true;
}

void LetTimePass(std::chrono::milliseconds time)
{
    sinceStart += time;
}

} // namespace lineforge::monkey
