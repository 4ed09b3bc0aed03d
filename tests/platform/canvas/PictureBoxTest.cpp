#include "platform/canvas/PictureBox.h"

#include "support/Pixels.h"
#include "support/Printing.h"

#include <functional>
#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Combine;
using testing::TestWithParam;
using testing::Values;

constexpr Colour red = Rgb(255, 0, 0);
constexpr int pixel = PictureBox::TwipsPerPixel;

// A picture of 400 by 300 pixels.
struct Stage {
    Container Window;
    PictureBox Picture{Window, u"Picture1", {0, 0, 400 * pixel, 300 * pixel}};
};

class PictureBoxTest : public testing::Test, protected Stage
{
};

TEST_F(PictureBoxTest, UntouchedPicture_IsBlank_AndCostsNoImage)
{
    EXPECT_TRUE(Picture.Drawing().isNull());
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(PictureBoxTest, FirstDrawing_MakesTheImage_InTheBackgroundsColour)
{
    Picture.BackColor = Rgb(192, 192, 192);
    Picture.Line({0, 0}, {100, 0});

    EXPECT_EQ(Picture.Drawing().size(), QSize(400, 300));
    EXPECT_EQ(ColourAt(Picture, {1000, 1000}), Rgb(192, 192, 192));
}

class LineWidthTest : public TestWithParam<int>, protected Stage
{
};

TEST_P(LineWidthTest, Line_IsThreePixelsWideForEachStep)
{
    Picture.DrawWidth = GetParam();
    Picture.Line({500, 700}, {1500, 700});
    Picture.Line({300, 200}, {300, 1300});

    EXPECT_EQ(CountPixels(Picture, Black, {1000, 0, pixel, 1500}), 3 * GetParam());
    EXPECT_EQ(CountPixels(Picture, Black, {0, 1000, 2000, pixel}), 3 * GetParam());
}

INSTANTIATE_TEST_SUITE_P(Widths, LineWidthTest, Values(1, 2, 3, 5));

TEST_F(PictureBoxTest, Line_LiesInTheMiddleOfItsPen_AndIsSharp)
{
    Picture.ForeColor = red;
    Picture.Line({500, 700}, {1500, 700});

    for (const int y : {695, 700, 705})
        EXPECT_EQ(ColourAt(Picture, {1000, y}), red) << y;
    EXPECT_EQ(CountPixels(Picture, red) + CountPixels(Picture, White), 400 * 300) << "no colour in between";
}

TEST_F(PictureBoxTest, LineOfNoLength_IsADot)
{
    Picture.Line({500, 500}, {500, 500});
    EXPECT_EQ(CountPixels(Picture, Black), 9);
}

TEST_F(PictureBoxTest, Line_IsTheSameEitherWay)
{
    Picture.Line({200, 100}, {1700, 1300});
    const QImage there = Picture.Drawing();
    Picture.Cls();
    Picture.Line({1700, 1300}, {200, 100});

    EXPECT_EQ(Picture.Drawing(), there);
}

TEST_F(PictureBoxTest, Box_IsAnOutline_AndItsInsideStays)
{
    const Rectangle place{500, 400, 600, 300};
    Picture.Box(place);

    // The pen reaches one pixel to each side of the outline's own.
    const Rectangle outer{495, 395, 615, 315};
    const Rectangle inner{510, 410, 585, 285};
    EXPECT_EQ(CountPixels(Picture, Black, inner), 0);
    EXPECT_EQ(CountPixels(Picture, Black, outer), 123 * 63 - 117 * 57);
    EXPECT_EQ(CountPixels(Picture, Black), 123 * 63 - 117 * 57) << "nothing outside";
    EXPECT_EQ(ColourAt(Picture, {495, 395}), Black);
    EXPECT_EQ(ColourAt(Picture, {1105, 705}), Black);
}

TEST_F(PictureBoxTest, BoxOverADrawing_LeavesItInside)
{
    Picture.ForeColor = red;
    Picture.Line({700, 500}, {900, 500});
    const int before = CountPixels(Picture, red);

    Picture.ForeColor = Black;
    Picture.Box({500, 400, 600, 300});

    EXPECT_EQ(CountPixels(Picture, red), before);
}

TEST_F(PictureBoxTest, ThickBox_IsThickAllAround)
{
    Picture.DrawWidth = 2;
    Picture.Box({500, 400, 600, 300});

    EXPECT_EQ(CountPixels(Picture, Black, {800, 300, pixel, 200}), 6);
    EXPECT_EQ(CountPixels(Picture, Black, {800, 600, pixel, 200}), 6);
    EXPECT_EQ(CountPixels(Picture, Black, {400, 500, 200, pixel}), 6);
    EXPECT_EQ(CountPixels(Picture, Black, {1000, 500, 200, pixel}), 6);
}

TEST_F(PictureBoxTest, DrawingOffThePicture_IsPassedOver)
{
    Picture.Line({-500, -500}, {-100, -100});
    Picture.Box({5000, 5000, 100, 100});
    Picture.PrintAt({-3000, 100}, u"far away"_s);

    EXPECT_TRUE(IsBlank(Picture));
    Picture.Line({-500, 500}, {5000, 500});
    EXPECT_EQ(CountPixels(Picture, Black), 3 * 400) << "what sticks out is cut off";
}

struct Print {
    TextFont Font;
    QStringView Text;
};

void PrintTo(const Print& print, std::ostream* out)
{
    PrintTo(print.Text, out);
    *out << " in " << print.Font.Name.toStdString() << ' ' << print.Font.Size;
}

class PrintTest : public TestWithParam<Print>, protected Stage
{
};

TEST_P(PrintTest, TextPrintedAgainInTheBackground_LeavesNothing)
{
    Picture.Font = GetParam().Font;
    Picture.PrintAt({300, 200}, GetParam().Text.toString());
    EXPECT_GT(CountPixels(Picture, Black), 0);
    EXPECT_EQ(CountPixels(Picture, Black) + CountPixels(Picture, White), 400 * 300) << "no colour in between";

    Picture.ForeColor = Picture.BackColor;
    Picture.PrintAt({300, 200}, GetParam().Text.toString());
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_P(PrintTest, Print_MovesToTheStartOfTheNextLine)
{
    Picture.Font = GetParam().Font;
    const QString text = GetParam().Text.toString();
    Picture.PrintAt({300, 200}, text);

    EXPECT_EQ(Picture.CurrentX, 0);
    EXPECT_EQ(Picture.CurrentY, 200 + Picture.TextHeight(text));
    EXPECT_GE(Picture.TextHeight(text), qRound(GetParam().Font.Size * 20));
    EXPECT_GT(Picture.TextWidth(text), 0);
}

TEST_P(PrintTest, Text_LiesBelowAndRightOfItsPlace)
{
    Picture.Font = GetParam().Font;
    const QString text = GetParam().Text.toString();
    Picture.PrintAt({300, 200}, text);

    // Slanted and round letters may reach out of their place by a fraction of their size.
    const int slack = qRound(GetParam().Font.Size * 8);
    const Rectangle place{300 - slack, 200 - slack, Picture.TextWidth(text) + 2 * slack,
                          Picture.TextHeight(text) + 2 * slack};
    EXPECT_EQ(CountPixels(Picture, Black, place), CountPixels(Picture, Black));
}

INSTANTIATE_TEST_SUITE_P(Fonts, PrintTest,
                         Values(Print{{}, u"The Smiths"}, Print{{u"Arial"_s, 8, true}, u"A001"},
                                Print{{u"Arial"_s, 8, false, true}, u"fjord"},
                                Print{{u"Arial"_s, 24, true, true}, u"J\u00f8rgf"},
                                Print{{u"Courier"_s, 12}, u"Zo\u00eb \u00c5"},
                                Print{{u"Times New Roman"_s, 36}, u"Qjy|"}, Print{{u"Arial"_s, 6.75}, u"tiny"}));

TEST_F(PictureBoxTest, LargerFont_PrintsLarger)
{
    const int width = Picture.TextWidth(u"John"_s);
    const int height = Picture.TextHeight(u"John"_s);
    Picture.Font.Size = 16;

    EXPECT_NEAR(Picture.TextWidth(u"John"_s), 2 * width, 30);
    EXPECT_NEAR(Picture.TextHeight(u"John"_s), 2 * height, 30);
}

TEST_F(PictureBoxTest, FontBeyondAllMeasure_IsAsLargeOrSmallAsFontsCanBe)
{
    const auto heightAt = [this](double size) {
        Picture.Font.Size = size;
        Picture.PrintAt({300, 200}, u"John"_s);
        return Picture.TextHeight(u"John"_s);
    };
    EXPECT_GT(heightAt(2147483648.0), heightAt(1000));
    EXPECT_EQ(heightAt(1e300), heightAt(2147483648.0));
    EXPECT_EQ(heightAt(-2147483648.0), heightAt(0));
}

TEST_F(PictureBoxTest, TextOfNoCharacters_IsNothing_ButALine)
{
    Picture.PrintAt({300, 200}, QString());

    EXPECT_EQ(Picture.TextWidth(QString()), 0);
    EXPECT_EQ(Picture.CurrentY, 200 + Picture.TextHeight(QString()));
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(PictureBoxTest, Cls_WipesTheDrawing_AndGoesToTheTopLeft)
{
    Picture.Line({0, 0}, {1000, 1000});
    Picture.CurrentX = 50;
    Picture.CurrentY = 60;

    Picture.Cls();

    EXPECT_TRUE(IsBlank(Picture));
    EXPECT_EQ(Picture.CurrentX, 0);
    EXPECT_EQ(Picture.CurrentY, 0);
    Picture.Line({0, 0}, {1000, 0});
    EXPECT_FALSE(IsBlank(Picture)) << "and can be drawn on again";
}

struct Stroke {
    const char* Name;
    void (*Draw)(Surface& surface);
};

void PrintTo(const Stroke& stroke, std::ostream* out)
{
    *out << stroke.Name;
}

const Stroke slantedLine{"slanted line", [](Surface& surface) { surface.Line({100, 100}, {1700, 1300}); }};
const Stroke crossingLine{"crossing line", [](Surface& surface) { surface.Line({100, 1300}, {1700, 90}); }};
const Stroke flatLine{"flat line", [](Surface& surface) { surface.Line({0, 700}, {2000, 700}); }};
const Stroke shortLine{"short line", [](Surface& surface) { surface.Line({800, 700}, {805, 702}); }};
const Stroke box{"box", [](Surface& surface) { surface.Box({300, 300, 900, 700}); }};
const Stroke thinBox{"thin box", [](Surface& surface) { surface.Box({300, 690, 900, 5}); }};
const Stroke emptyBox{"empty box", [](Surface& surface) { surface.Box({600, 600, 0, 0}); }};
const Stroke edgeBox{"box over the edge", [](Surface& surface) { surface.Box({1500, 1000, 900, 900}); }};
const Stroke thickLine{"thick line", [](Surface& surface) {
                           surface.DrawWidth = 4;
                           surface.Line({100, 200}, {1900, 1000});
                           surface.DrawWidth = 1;
                       }};
const Stroke text{"text", [](Surface& surface) { surface.PrintAt({500, 500}, QStringLiteral("The Smiths")); }};
const Stroke slantedText{"slanted text", [](Surface& surface) {
                             surface.Font = {QStringLiteral("Arial"), 20, true, true};
                             surface.PrintAt({500, 500}, QStringLiteral("fjord f"));
                         }};

class RubberPenTest : public TestWithParam<std::tuple<DrawMode, Stroke>>, protected Stage
{
};

TEST_P(RubberPenTest, StrokeDrawnTwice_LeavesNoTrace)
{
    for (const Stroke& stroke : {slantedLine, flatLine, box, text})
        stroke.Draw(Picture);
    Picture.ForeColor = red;
    crossingLine.Draw(Picture);
    const QImage before = Picture.Drawing();

    const auto [mode, stroke] = GetParam();
    Picture.Mode = mode;
    Picture.ForeColor = mode == DrawMode::Xor ? Rgb(160, 160, 160) : Rgb(0, 0, 128);
    stroke.Draw(Picture);
    EXPECT_NE(Picture.Drawing(), before);
    stroke.Draw(Picture);
    EXPECT_EQ(Picture.Drawing(), before);
}

TEST_P(RubberPenTest, StrokesThatCross_LeaveNoTrace_InWhateverOrderTheyGo)
{
    text.Draw(Picture);
    const QImage before = Picture.Drawing();

    const auto [mode, stroke] = GetParam();
    Picture.Mode = mode;
    Picture.ForeColor = Rgb(160, 160, 160);
    stroke.Draw(Picture);
    box.Draw(Picture);
    crossingLine.Draw(Picture);
    stroke.Draw(Picture);
    EXPECT_NE(Picture.Drawing(), before);
    box.Draw(Picture);
    crossingLine.Draw(Picture);

    EXPECT_EQ(Picture.Drawing(), before);
}

INSTANTIATE_TEST_SUITE_P(Modes, RubberPenTest,
                         Combine(Values(DrawMode::Xor, DrawMode::NotXor),
                                 Values(slantedLine, flatLine, shortLine, box, thinBox, emptyBox, edgeBox, thickLine)));

TEST_F(PictureBoxTest, NotXorInBlack_TurnsWhiteToBlack_AndBlackToWhite)
{
    Picture.Mode = DrawMode::NotXor;
    flatLine.Draw(Picture);
    EXPECT_EQ(ColourAt(Picture, {1000, 700}), Black);

    Picture.Line({1000, 0}, {1000, 1400});
    EXPECT_EQ(ColourAt(Picture, {1000, 700}), White);
}

TEST_F(PictureBoxTest, XorPen_MixesTheColours)
{
    Picture.Mode = DrawMode::Xor;
    Picture.ForeColor = red;
    flatLine.Draw(Picture);

    EXPECT_EQ(ColourAt(Picture, {1000, 700}), Rgb(0, 255, 255));
}

class ChangedTest : public TestWithParam<Stroke>, protected Stage
{
};

TEST_P(ChangedTest, StretchTold_HoldsEveryPixelThatChanged)
{
    QRegion told;
    Picture.Line({0, 0}, {0, 0});
    const QImage before = Picture.Drawing();
    Picture.Changed = [&](const QRect& pixels) { told += pixels; };

    GetParam().Draw(Picture);

    const QImage after = Picture.Drawing();
    int outside = 0;
    int changed = 0;
    for (int y = 0; y < after.height(); ++y)
        for (int x = 0; x < after.width(); ++x)
            if (before.pixel(x, y) != after.pixel(x, y)) {
                ++changed;
                outside += !told.contains(QPoint(x, y));
            }
    EXPECT_GT(changed, 0);
    EXPECT_EQ(outside, 0);
    EXPECT_TRUE(after.rect().contains(told.boundingRect()));
}

INSTANTIATE_TEST_SUITE_P(Strokes, ChangedTest,
                         Values(slantedLine, crossingLine, flatLine, shortLine, box, thinBox, edgeBox, thickLine, text,
                                slantedText));

TEST_F(PictureBoxTest, Cls_TellsOfTheWholePicture)
{
    Picture.Line({0, 0}, {1000, 1000});
    QRect told;
    Picture.Changed = [&](const QRect& pixels) { told = pixels; };

    Picture.Cls();

    EXPECT_EQ(told, QRect(0, 0, 400, 300));
}

TEST_F(PictureBoxTest, ToolkitsColour_IsTheSame)
{
    EXPECT_EQ(ToQColor(Rgb(1, 2, 3)), QColor(1, 2, 3));
}

} // namespace
} // namespace lineforge
