#include "platform/canvas/PictureBox.h"
#include "qt/WindowTest.h"

#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct ShapeForm : Form {
    ShapeForm() : Form(u"ShapeForm", u"Shapes", {6000, 4000})
    {
        Shape2.Filled = true;
        Rubber.Kind = Shape::Outline::Rectangle;
        Rubber.Dotted = true;
        for (Shape* shape : {&Shape1, &Shape2, &Rubber}) {
            shape->BorderColor = Rgb(255, 0, 0);
            shape->Visible = true;
        }
    }
    PictureBox Picture1{*this, u"Picture1", {0, 0, 6000, 8000}};
    Shape Shape1{Picture1, u"Shape1", {600, 600, 600, 1200}};
    Shape Shape2{Picture1, u"Shape2", {2400, 600, 600, 1200}};
    Shape Shape3{Picture1, u"Shape3", {3600, 600, 600, 1200}};
    Shape Rubber{Picture1, u"Rubber", {3600, 2400, 1200, 900}};
};

struct ShapeTest : WindowTest {
    Window<ShapeForm> Shapes{System()};
    void SetUp() override { Shapes->Visible = true; }
    QColor ColourAt(Point twips)
    {
        const QImage shown = ViewOf(*Shapes).grab().toImage();
        return shown.pixelColor(PixelScale().ToPixels(twips.X), PixelScale().ToPixels(twips.Y));
    }
};

const QColor red(255, 0, 0);

// How much of a stretch of the window is red, the stretch given in twips: 1 for all of it.
double Redness(const QImage& window, const QRect& pixels)
{
    double sum = 0;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            sum += (255 - window.pixelColor(x, y).green()) / 255.0;
    return sum / (pixels.width() * pixels.height());
}

struct RubberTest : ShapeTest {
    double Redness(Rectangle twips)
    {
        return lineforge::Redness(ViewOf(*Shapes).grab().toImage(), PixelScale().ToPixels(twips));
    }
    void Stretch(int width, int height)
    {
        Shapes->Rubber.Width = width;
        Shapes->Rubber.Height = height;
    }
    // The outline's thickness in twips.
    int Pen() { return PixelScale().ToTwips(2); }
};

TEST_F(ShapeTest, AnOutlineOfAnUprightOval)
{
    EXPECT_EQ(ColourAt({600 + 300, 600 + 15}), red);
    EXPECT_EQ(ColourAt({600 + 15, 600 + 600}), red);
    EXPECT_EQ(ColourAt({600 + 300, 600 + 600}), QColor(Qt::white));
    EXPECT_EQ(ColourAt({600 + 15, 600 + 15}), QColor(Qt::white)); // no rectangle
}

TEST_F(ShapeTest, FilledWithTheColourOfItsBorder)
{
    EXPECT_EQ(ColourAt({2400 + 300, 600 + 600}), red);
    Shapes->Shape2.BorderColor = Rgb(0, 0, 255);
    EXPECT_EQ(ColourAt({2400 + 300, 600 + 600}), QColor(Qt::blue));
}

TEST_F(ShapeTest, HiddenUntilItIsToldToShow)
{
    Shapes->Shape3.Filled = false;
    EXPECT_FALSE(Find<QWidget>(*Shapes, u"Shape3"_s).isVisible());
    Shapes->Shape3.Visible = true;
    EXPECT_TRUE(Find<QWidget>(*Shapes, u"Shape3"_s).isVisible());
}

TEST_F(ShapeTest, StandsAboveThePicture_AndScrollsWithIt)
{
    Shapes->Picture1.Top = -300;
    EXPECT_EQ(ColourAt({600 + 300, 600 - 300 + 15}), red);
}

TEST_F(ShapeTest, TheMouseGoesThroughToThePicture)
{
    std::vector<double> seen;
    Shapes->Picture1.MouseDown = [&seen](int, int, double x, double y) { seen = {x, y}; };
    const QPoint middle(PixelScale().ToPixels(2700), PixelScale().ToPixels(1200));
    QTest::mousePress(ViewOf(*Shapes).windowHandle(), Qt::LeftButton, {}, middle);
    QTest::mouseRelease(ViewOf(*Shapes).windowHandle(), Qt::LeftButton, {}, middle);
    EXPECT_EQ(seen, (std::vector<double>{2700, 1200}));
}

TEST_F(RubberTest, ADottedOutline_IsHalfPaintedOnEachSide_AndEmptyInside)
{
    const int pen = Pen();
    for (const Rectangle side : {Rectangle{3600, 2400, 1200, pen}, Rectangle{3600, 2400 + 900 - pen, 1200, pen},
                                 Rectangle{3600, 2400, pen, 900}, Rectangle{3600 + 1200 - pen, 2400, pen, 900}}) {
        EXPECT_GT(Redness(side), 0.3) << side.Left << ',' << side.Top;
        EXPECT_LT(Redness(side), 0.7) << side.Left << ',' << side.Top;
    }
    EXPECT_EQ(Redness({3600 + pen, 2400 + pen, 1200 - 2 * pen, 900 - 2 * pen}), 0);
}

TEST_F(RubberTest, FollowsTheMouse_AndLeavesNothingBehind)
{
    for (const int size : {300, 600, 1500, 450, 150})
        Stretch(size, size);

    EXPECT_GT(Redness({3600, 2400, 150, 150}), 0.3);
    EXPECT_EQ(Redness({3600 + 150, 2400, 1500, 1500}), 0);
    EXPECT_EQ(Redness({3600, 2400 + 150, 1500, 1400}), 0);
}

TEST_F(RubberTest, TheDotsWhereTheDragBegan_StayWhileItGrows)
{
    const auto corner = [this] {
        const QRect place = PixelScale().ToPixels(Rectangle{3600, 2400, 450, Pen()});
        return ViewOf(*Shapes).grab().toImage().copy(place);
    };
    Stretch(600, 600);
    const QImage before = corner();
    Stretch(795, 1005);
    EXPECT_EQ(corner(), before);
}

TEST_F(RubberTest, WithoutAWidthOrAHeight_ItIsADottedLine)
{
    Stretch(1200, 0);
    EXPECT_GT(Redness({3600, 2400, 1200, Pen()}), 0.3);
    EXPECT_LT(Redness({3600, 2400, 1200, Pen()}), 0.7);
    Stretch(0, 900);
    EXPECT_GT(Redness({3600, 2400, Pen(), 900}), 0.3);
    EXPECT_LT(Redness({3600, 2400, Pen(), 900}), 0.7);
    Stretch(0, 0);
    EXPECT_GT(Redness({3600, 2400, Pen(), Pen()}), 0.3);
}

TEST_F(RubberTest, TheMouseGoesThroughToThePicture)
{
    Point seen;
    Shapes->Picture1.MouseMove = [&seen](int, int, double x, double y) {
        seen = {static_cast<int>(x), static_cast<int>(y)};
    };
    const QPoint onItsEdge(PixelScale().ToPixels(3600), PixelScale().ToPixels(2700));
    QTest::mouseMove(ViewOf(*Shapes).windowHandle(), onItsEdge);
    ServeEvents();
    EXPECT_EQ(seen, (Point{3600, 2700}));
}
} // namespace

} // namespace lineforge
