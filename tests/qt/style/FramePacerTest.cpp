#include "qt/style/FramePacer.h"

#include <QTest>

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{

TEST(FramePacerTest, FirstChange_IsShownAtOnce_ThoseBehindItTogetherAndLater)
{
    int shown = 0;
    FramePacer pacer([&] { ++shown; });
    for (int change = 0; change < 100'000; ++change)
        pacer.Request();
    const int atOnce = shown;
    EXPECT_GE(atOnce, 1);
    EXPECT_LT(atOnce, 100);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown > atOnce; })) << "the last change is not forgotten";
    const int all = shown;
    QTest::qWait(50);
    EXPECT_EQ(shown, all);
}

} // namespace
} // namespace lineforge
