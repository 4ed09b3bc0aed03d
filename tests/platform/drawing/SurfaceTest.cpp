#include "platform/drawing/Surface.h"

#include "platform/base/RuntimeError.h"
#include "support/Printing.h"
#include "support/RecordingSurface.h"
#include "support/Refusal.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using testing::TestWithParam;
using testing::Values;

TEST(RgbTest, Red_StandsInTheLowByte)
{
    EXPECT_EQ(Rgb(255, 0, 0), 255u);
    EXPECT_EQ(Rgb(0, 255, 0), 65280u);
    EXPECT_EQ(Rgb(0, 0, 255), 16711680u);
}

struct Paint {
    int Number;
    Colour Expected;
};

class QbColorTest : public TestWithParam<Paint>
{
};

TEST_P(QbColorTest, Number_GivesTheColourOfTheConsole)
{
    EXPECT_EQ(QbColor(GetParam().Number), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(Palette, QbColorTest,
                         Values(Paint{0, Rgb(0, 0, 0)}, Paint{1, Rgb(0, 0, 128)}, Paint{2, Rgb(0, 128, 0)},
                                Paint{3, Rgb(0, 128, 128)}, Paint{4, Rgb(128, 0, 0)}, Paint{5, Rgb(128, 0, 128)},
                                Paint{6, Rgb(128, 128, 0)}, Paint{7, Rgb(192, 192, 192)}, Paint{8, Rgb(128, 128, 128)},
                                Paint{9, Rgb(0, 0, 255)}, Paint{10, Rgb(0, 255, 0)}, Paint{11, Rgb(0, 255, 255)},
                                Paint{12, Rgb(255, 0, 0)}, Paint{13, Rgb(255, 0, 255)}, Paint{14, Rgb(255, 255, 0)},
                                Paint{15, Rgb(255, 255, 255)}));

TEST(QbColorEdgeTest, NumberOutsideThePalette_IsInvalidCall)
{
    EXPECT_EQ(RefusalOf([] { QbColor(-1); }), ErrorNumber::InvalidCall);
    EXPECT_EQ(RefusalOf([] { QbColor(16); }), ErrorNumber::InvalidCall);
}

TEST(SurfaceTest, PrintAt_PrintsThere)
{
    RecordingSurface surface;

    surface.PrintAt({120, 340}, QStringLiteral("John"));

    EXPECT_EQ(surface.Calls, QStringList(QStringLiteral("Print 120,340 \"John\" Arial 8 colour 0")));
    EXPECT_EQ(surface.CurrentX, 0);
    EXPECT_EQ(surface.CurrentY, 340 + surface.TextHeight(QStringLiteral("John")));
}

TEST(SurfaceTest, FreshSurface_DrawsThinBlackLinesOverWhatIsThere)
{
    RecordingSurface surface;

    surface.Line({0, 0}, {10, 10});
    surface.Box({1, 2, 3, 4});

    EXPECT_EQ(surface.Calls, QStringList({QStringLiteral("Line 0,0 10,10 pen 1 colour 0 mode 13"),
                                          QStringLiteral("Box 1,2 3x4 pen 1 colour 0 mode 13")}));
}

} // namespace
} // namespace lineforge
