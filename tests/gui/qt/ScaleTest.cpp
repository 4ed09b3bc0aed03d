#include "platform/qt/Scale.h"

#include "gui/qt/WindowTest.h"

namespace lineforge
{

namespace
{
struct FittingRow {
    int ScreenWidth;
    int ScreenHeight;
    int TwipsAPixel;
};

class FittingScaleTest : public testing::TestWithParam<FittingRow>
{
};

TEST_P(FittingScaleTest, TakesTheFewestTwipsAPixelAtWhichTheMainWindowFits)
{
    const FittingRow& row = GetParam();
    const QSize available(row.ScreenWidth, row.ScreenHeight);
    EXPECT_EQ(FittingScale(MainWindowSize, available, 24).TwipsAPixel(), row.TwipsAPixel);
}

INSTANTIATE_TEST_SUITE_P(Screens, FittingScaleTest,
                         testing::Values(FittingRow{640, 480, 15},    // nothing fits: the design size
                                         FittingRow{800, 600, 15},    //
                                         FittingRow{1024, 768, 12},   //
                                         FittingRow{1366, 738, 12},   // the height decides
                                         FittingRow{1024, 2000, 12},  // the width decides
                                         FittingRow{1280, 1024, 10},  //
                                         FittingRow{1920, 1050, 10},  // at 8 the bars stick out
                                         FittingRow{1920, 1200, 8},   //
                                         FittingRow{2560, 1420, 8},   // at 6 the bars stick out
                                         FittingRow{2560, 1440, 6},   //
                                         FittingRow{3000, 1800, 5},   //
                                         FittingRow{3840, 2130, 4},   //
                                         FittingRow{5120, 2880, 3},   //
                                         FittingRow{9000, 9000, 3})); // finer is never taken

TEST(ScaleTest, MousePointsAreWholeTwips)
{
    EXPECT_EQ(Scale(12).ToTwips(7), 84);
    EXPECT_EQ(Scale(12).ToTwips(-2), -24);
}

TEST(ScaleTest, NeighboursThatTouchInTwipsTouchInPixels)
{
    const Scale scale(10);
    const QRect left = scale.ToPixels(Rectangle{3, 0, 104, 30});
    const QRect right = scale.ToPixels(Rectangle{107, 0, 51, 30});
    EXPECT_EQ(left.right() + 1, right.left());
}

TEST(ScaleTest, EightPointsAreAHundredAndSixtyTwips_ButNeverUnreadable)
{
    EXPECT_EQ(Scale(5).FontPixels(8), 32);
    EXPECT_EQ(Scale(15).FontPixels(8), 11);
    EXPECT_EQ(Scale(15).FontPixels(4), 10);
}
} // namespace

} // namespace lineforge
