#include "platform/canvas/PictureBox.h"
#include "platform/canvas/TextMask.h"
#include "support/Printing.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPen>
#include <QRegion>

#include <gtest/gtest.h>
#include <random>

// The picture finds shorter ways than a painter's, and shows the very same pixels.
namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Combine;
using testing::TestWithParam;
using testing::Values;

constexpr int pixel = PictureBox::TwipsPerPixel;
constexpr int width = 300;
constexpr int height = 220;
constexpr Colour olive = Rgb(130, 140, 20);

QFont FontOf(const TextFont& font)
{
    QFont result(font.Name);
    result.setPixelSize(std::max(1, qRound(font.Size * 20 / pixel)));
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setStyleStrategy(QFont::NoAntialias);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

QPainter::CompositionMode CompositionOf(DrawMode mode)
{
    return mode == DrawMode::Copy  ? QPainter::CompositionMode_SourceOver
           : mode == DrawMode::Xor ? QPainter::RasterOp_SourceXorDestination
                                   : QPainter::RasterOp_NotSourceXorDestination;
}

// A picture, and beside it what a painter makes of the same calls.
class Twins
{
public:
    explicit Twins(DrawMode mode)
    {
        Picture.Mode = mode;
        Picture.ForeColor = olive;
        painted_.fill(Qt::white);
    }

    void Print(QPoint place, const QString& text)
    {
        Picture.PrintAt({place.x() * pixel, place.y() * pixel}, text);
        const QFont font = FontOf(Picture.Font);
        Paint([&](QPainter& painter) {
            painter.setFont(font);
            painter.drawText(place + QPoint(0, QFontMetrics(font).ascent()), text);
        });
    }

    void Line(QPoint from, QPoint to)
    {
        Picture.Line({from.x() * pixel, from.y() * pixel}, {to.x() * pixel, to.y() * pixel});
        Paint([&](QPainter& painter) { painter.drawLine(from, to); });
    }

    void Box(QPoint corner, QSize size)
    {
        Picture.Box({corner.x() * pixel, corner.y() * pixel, size.width() * pixel, size.height() * pixel});
        Paint([&](QPainter& painter) {
            const int pen = 3 * Picture.DrawWidth;
            const QRect outer = QRect(corner, QSize(size.width() + 1, size.height() + 1))
                                    .adjusted(-(pen / 2), -(pen / 2), pen / 2, pen / 2);
            for (const QRect& bar : QRegion(outer).subtracted(outer.adjusted(pen, pen, -pen, -pen)))
                painter.fillRect(bar, ToQColor(Picture.ForeColor));
        });
    }

    bool AreEqual() const { return Picture.Drawing() == painted_; }

private:
    Container window_;

public:
    PictureBox Picture{window_, u"Picture1", {0, 0, width* pixel, height* pixel}};

private:
    template <class Draw>
    void Paint(Draw&& draw)
    {
        QPainter painter(&painted_);
        painter.setCompositionMode(CompositionOf(Picture.Mode));
        painter.setPen(QPen(ToQColor(Picture.ForeColor), 3 * Picture.DrawWidth, Qt::SolidLine, Qt::SquareCap));
        draw(painter);
    }

    QImage painted_{width, height, QImage::Format_RGB32};
};

const QPoint places[] = {{40, 60},  {0, 0},    {-25, 90}, {-400, 30}, {260, 70},  {299, 40},
                         {30, -13}, {50, 203}, {70, 219}, {90, 400},  {-20, -20}, {280, 200}};

const QString texts[] = {
    u"The Smiths"_s,
    u"A001"_s,
    QString(),
    u" "_s,
    u"fjord f"_s,
    u"\u00c5\u00f8\u0112 Zo\u00eb"_s,                // accents of one character each
    u"Zoe\u0308 A\u030a\u0301 q\u0323\u0302"_s,      // and of several
    u"\u05e9\u05dc\u05d5\u05dd abc \u05d3"_s,        // right to left, and both ways
    u"\u0645\u0631\u062d\u0628\u0627"_s,             // joined letters
    u"\u0915\u094d\u0937\u093f \u6587 \U0001f600"_s, // what the font has no letters for
    u"two\nlines\tand a tab"_s,
    u"WAVE To. 1 \u2192 2"_s,
    u"\u200b\u0301"_s,
};

class TextPixelsTest : public TestWithParam<std::tuple<DrawMode, TextFont>>
{
};

TEST_P(TextPixelsTest, TextIsWhatAPainterDraws_WhereverItStands)
{
    const auto& [mode, font] = GetParam();
    Twins twins(mode);
    twins.Picture.Font = font;
    for (const QString& text : texts)
        for (const QPoint place : places) {
            twins.Print(place, text);
            ASSERT_TRUE(twins.AreEqual()) << text.toStdString() << " at " << place.x() << ',' << place.y();
        }
}

INSTANTIATE_TEST_SUITE_P(Fonts, TextPixelsTest,
                         Combine(Values(DrawMode::Copy, DrawMode::Xor, DrawMode::NotXor),
                                 Values(TextFont{}, TextFont{u"Arial"_s, 8.25}, TextFont{u"Arial"_s, 8, true},
                                        TextFont{u"Arial"_s, 11, false, true}, TextFont{u"Arial"_s, 14, true, true},
                                        TextFont{u"Courier"_s, 12}, TextFont{u"Times New Roman"_s, 20, false, true},
                                        TextFont{u"DejaVu Math TeX Gyre"_s, 10, true, true},
                                        TextFont{u"No such font"_s, 9}, TextFont{u"Arial"_s, 0},
                                        TextFont{u"Arial"_s, 1}, TextFont{u"Times New Roman"_s, 36, true, true},
                                        TextFont{u"Arial"_s, 400})));

class PenPixelsTest : public TestWithParam<std::tuple<DrawMode, int>>
{
protected:
    PenPixelsTest() { twins_.Picture.DrawWidth = std::get<int>(GetParam()); }

    // In the picture, or about it as far past its edges.
    QPoint SomePlace(int past) { return {Some(-past, width - 1 + past), Some(-past, height - 1 + past)}; }
    int Some(int least, int most) { return std::uniform_int_distribution(least, most)(random_); }

    Twins twins_{std::get<DrawMode>(GetParam())};

private:
    std::mt19937 random_{1};
};

TEST_P(PenPixelsTest, LineIsWhatAPainterDraws)
{
    for (int line = 0; line < 4000; ++line) {
        const int past = line % 32 == 0 ? 10'000'000 : line % 2 == 0 ? 100 : 0;
        const QPoint from = SomePlace(past);
        QPoint to = SomePlace(past);
        if (line % 8 < 2)
            to.setX(from.x());
        else if (line % 8 < 4)
            to.setY(from.y());
        else if (line % 8 == 4)
            to = from + QPoint(Some(-2, 2), Some(-2, 2));
        twins_.Line(from, to);
        ASSERT_TRUE(twins_.AreEqual()) << from.x() << ',' << from.y() << " to " << to.x() << ',' << to.y();
    }
}

TEST_P(PenPixelsTest, BoxIsWhatAPainterFills)
{
    for (int box = 0; box < 1000; ++box) {
        const QPoint corner = SomePlace(100);
        const QSize size = box % 4 ? QSize(Some(0, width), Some(0, height)) : QSize(Some(0, 12), Some(0, 12));
        twins_.Box(corner, size);
        ASSERT_TRUE(twins_.AreEqual()) << corner.x() << ',' << corner.y() << " of " << size.width() << " by "
                                       << size.height();
    }
}

INSTANTIATE_TEST_SUITE_P(Pens, PenPixelsTest,
                         Combine(Values(DrawMode::Copy, DrawMode::Xor, DrawMode::NotXor), Values(1, 2, 3, 4)));

TEST(TextMasksTest, SameText_IsTheSameMask)
{
    TextMasks masks;
    const TextMask* first = &masks.Of({}, u"A001"_s);
    EXPECT_NE(&masks.Of({u"Arial"_s, 8, true}, u"A001"_s), first);
    EXPECT_NE(&masks.Of({}, u"A002"_s), first);
    EXPECT_EQ(&masks.Of({}, u"A001"_s), first);
}

TEST(TextMasksTest, VeryLargeText_IsMeasured_ButItsPixelsAreNotKept)
{
    TextMasks masks;
    const TextMask& mask = masks.Of({u"Arial"_s, 400}, u"W"_s);
    EXPECT_FALSE(mask.IsKept);
    EXPECT_TRUE(mask.Runs.empty());
    EXPECT_GT(mask.Width, 1000);
    EXPECT_FALSE(masks.Of({}, QString(5'000'000, u'm')).IsKept);
}

TEST(TextMasksTest, MoreTextsThanAreKept_AreAllStillMade)
{
    TextMasks masks;
    for (int text = 0; text < 3000; ++text)
        ASSERT_FALSE(masks.Of({u"Arial"_s, 14}, QString::number(text) + u" and more"_s).Runs.empty());
}

} // namespace
} // namespace lineforge
