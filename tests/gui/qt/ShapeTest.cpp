#include "gui/qt/WindowTest.h"
#include "platform/PictureBox.h"

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
        for (Shape* shape : {&Shape1, &Shape2}) {
            shape->BorderColor = Rgb(255, 0, 0);
            shape->Visible = true;
        }
    }
    PictureBox Picture1{*this, u"Picture1", {0, 0, 6000, 8000}};
    Shape Shape1{Picture1, u"Shape1", {600, 600, 600, 1200}};
    Shape Shape2{Picture1, u"Shape2", {2400, 600, 600, 1200}};
    Shape Shape3{Picture1, u"Shape3", {3600, 600, 600, 1200}};
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
} // namespace

} // namespace lineforge
