#include "qt/style/FramePacer.h"

#include "qt/WindowTest.h"
#include "support/Clocks.h"

namespace lineforge
{
namespace
{
using namespace std::chrono_literals;

TEST(FramePacerTest, FirstChange_IsShownAtOnce_ThoseBehindItTogetherAndLater)
{
    HeldClocks clocks;
    int shown = 0;
    FramePacer pacer([&] { ++shown; });
    const auto shownAfter = [&](std::chrono::milliseconds time) {
        clocks.LetPass(time);
        ServeEvents();
        return shown;
    };
    for (int change = 0; change < 100'000; ++change)
        pacer.Request();
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(shownAfter(15ms), 1);
    EXPECT_EQ(shownAfter(1ms), 2) << "the last change is not forgotten";
    EXPECT_EQ(shownAfter(1s), 2);
    pacer.Request();
    EXPECT_EQ(shown, 3);
}

TEST(FramePacerTest, ChangesThatComeAllTheTime_AreShownOnceAFrame)
{
    HeldClocks clocks;
    int shown = 0;
    FramePacer pacer([&] { ++shown; });
    for (int millisecond = 0; millisecond < 160; ++millisecond) {
        pacer.Request();
        clocks.LetPass(1ms);
        ServeEvents();
    }
    EXPECT_EQ(shown, 11);
}

} // namespace
} // namespace lineforge
