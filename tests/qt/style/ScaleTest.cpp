#include "qt/style/Scale.h"

#include "qt/WindowTest.h"

namespace lineforge
{

namespace
{
struct FittingRow {
    int ScreenWidth;
    int ScreenHeight;
    int TwipsAPixel;
    double Dots = 1; // of the screen for one pixel
};

class FittingScaleTest : public testing::TestWithParam<FittingRow>
{
};

TEST_P(FittingScaleTest, TakesTheFewestTwipsAPixelAtWhichTheMainWindowFits)
{
    const FittingRow& row = GetParam();
    const QSize available(row.ScreenWidth, row.ScreenHeight);
    EXPECT_EQ(FittingScale(MainWindowSize, available, 24, row.Dots).TwipsAPixel(), row.TwipsAPixel);
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
                                         FittingRow{9000, 9000, 3},   // finer is never taken
                                         FittingRow{960, 540, 15},    // doesn't fit, but could not be read otherwise
                                         FittingRow{960, 540, 18, 2}, // where a pixel has several dots it can
                                         FittingRow{683, 450, 20, 2}, FittingRow{600, 420, 24, 2},
                                         FittingRow{400, 300, 30, 2},
                                         FittingRow{320, 200, 30, 3},    // coarser is never taken
                                         FittingRow{683, 450, 18, 1.25}, // could not be read at 20
                                         FittingRow{1536, 834, 12, 1.25}));

TEST(ScaleTest, MagnifiesWhatWasDesignedForFifteenTwipsAPixel)
{
    EXPECT_DOUBLE_EQ(Scale(15).Magnification(), 1);
    EXPECT_DOUBLE_EQ(Scale(6).Magnification(), 2.5);
}

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
    EXPECT_EQ(Scale(18, 2).FontPixels(8), 9);
    EXPECT_EQ(Scale(18, 2).FontPixels(2), 5);
}
} // namespace

} // namespace lineforge
