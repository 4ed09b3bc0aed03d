#include "monkey/SessionTime.h"

#include <QDateTime>
#include <QElapsedTimer>

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace lineforge::monkey
{
namespace
{

using std::chrono::milliseconds;

// In a thread of its own, whose clocks nobody else needs.
void InItsOwnThread(const std::function<void()>& test)
{
    std::thread(test).join();
}

TEST(SessionTimeTest, StoppedClocks_GoOnByWhatIsLetPassAlone)
{
    InItsOwnThread([] {
        StopClocks();
        QElapsedTimer toolkit;
        toolkit.start();
        const auto library = std::chrono::steady_clock::now();
        std::this_thread::sleep_for(milliseconds(5));
        EXPECT_EQ(toolkit.elapsed(), 0);

        LetTimePass(milliseconds(250));

        EXPECT_EQ(toolkit.elapsed(), 250);
        EXPECT_EQ(std::chrono::steady_clock::now() - library, milliseconds(250));
    });
}

TEST(SessionTimeTest, StoppedClocks_TellTheSameHourInEverySession)
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
    std::this_thread::sleep_for(milliseconds(5));
    EXPECT_EQ(hour(), first);
}

TEST(SessionTimeTest, OtherThreads_KeepTheirClocks)
{
    const auto before = std::chrono::steady_clock::now();
    InItsOwnThread(StopClocks);
    std::this_thread::sleep_for(milliseconds(2));
    EXPECT_GE(std::chrono::steady_clock::now() - before, milliseconds(2));
}

} // namespace
} // namespace lineforge::monkey
