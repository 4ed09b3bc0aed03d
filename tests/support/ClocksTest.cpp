#include "support/Clocks.h"

#include <QDateTime>
#include <QElapsedTimer>

#include <ctime>
#include <functional>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace lineforge
{
namespace
{

using std::chrono::milliseconds;

// In a thread of its own, whose clocks nobody else needs.
void InItsOwnThread(const std::function<void()>& test)
{
    std::thread(test).join();
}

// Past the machine's own millisecond, whatever this thread is told.
void PassAMillisecond()
{
    const auto now = [] {
        timespec time{};
        syscall(SYS_clock_gettime, CLOCK_MONOTONIC, &time);
        return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
    };
    for (const auto before = now(); now() - before < milliseconds(1);)
        ;
}

TEST(ClocksTest, StoppedClocks_GoOnByWhatIsLetPassAlone)
{
    InItsOwnThread([] {
        StopClocks();
        QElapsedTimer toolkit;
        toolkit.start();
        const auto library = std::chrono::steady_clock::now();
        PassAMillisecond();
        EXPECT_EQ(toolkit.elapsed(), 0);

        LetTimePass(milliseconds(250));

        EXPECT_EQ(toolkit.elapsed(), 250);
        EXPECT_EQ(std::chrono::steady_clock::now() - library, milliseconds(250));
    });
}

TEST(ClocksTest, StoppedClocks_TellTheSameHourInEverySession)
{
    const auto hour = [] {
        QDateTime told;
        InItsOwnThread([&told] {
            StopClocks();
            told = QDateTime::currentDateTimeUtc();
        });
        return told;
    };
    const QDateTime first = hour();
    PassAMillisecond();
    EXPECT_EQ(hour(), first);
}

TEST(ClocksTest, OtherThreads_KeepTheirClocks)
{
    const auto before = std::chrono::steady_clock::now();
    InItsOwnThread(StopClocks);
    PassAMillisecond();
    EXPECT_GE(std::chrono::steady_clock::now() - before, milliseconds(1));
}

TEST(ClocksTest, HeldClocks_StandWhereTheyWere_AndAreLetGo)
{
    QElapsedTimer toolkit;
    toolkit.start();
    const QDateTime hour = QDateTime::currentDateTimeUtc();
    {
        HeldClocks clocks;
        const qint64 atFirst = toolkit.nsecsElapsed();
        const QDateTime heldHour = QDateTime::currentDateTimeUtc();
        EXPECT_GE(heldHour, hour);
        PassAMillisecond();
        EXPECT_EQ(toolkit.nsecsElapsed(), atFirst);

        clocks.LetPass(milliseconds(1500));

        EXPECT_EQ(toolkit.nsecsElapsed() - atFirst, 1'500'000'000);
        EXPECT_EQ(heldHour.msecsTo(QDateTime::currentDateTimeUtc()), 1500);
    }
    const qint64 after = toolkit.nsecsElapsed();
    PassAMillisecond();
    EXPECT_GE(toolkit.nsecsElapsed() - after, 1'000'000);
}

} // namespace
} // namespace lineforge
