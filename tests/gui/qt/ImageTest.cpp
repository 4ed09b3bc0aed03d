#include "gui/qt/WindowTest.h"
#include "platform/qt/ClickableWidgets.h"

#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct ImageForm : Form {
    ImageForm() : Form(u"ImageForm", u"Images", {6000, 3000}) {}
    Image Image1{*this, u"Image1", {300, 300, 1500, 900}};
    Image Tile{*this, u"Image2(7)", {2100, 300, 600, 600}};
};

struct ImageTest : WindowTest {
    Window<ImageForm> Images{System()};
    void SetUp() override { Images->Visible = true; }
    QWidget& View() { return Find<QWidget>(*Images, u"Image1"_s); }
};

QImage Halves()
{
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    for (int y = 0; y < 20; ++y)
        for (int x = 10; x < 20; ++x)
            picture.setPixelColor(x, y, Qt::blue);
    return picture;
}

TEST_F(ImageTest, ThePictureIsStretchedToItsPlace)
{
    Images->Image1.Picture = Halves();
    const QImage shown = View().grab().toImage();
    EXPECT_EQ(shown.pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(1, shown.height() - 2), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(shown.width() - 2, shown.height() - 2), QColor(Qt::blue));
}

TEST_F(ImageTest, FollowsThePictureAndTheSize)
{
    Images->Image1.Picture = Halves();
    View().grab();
    Images->Image1.Width = 3000;
    QImage shown = View().grab().toImage();
    EXPECT_EQ(shown.pixelColor(shown.width() - 2, 2), QColor(Qt::blue));
    Images->Image1.Picture = QImage();
    shown = View().grab().toImage();
    EXPECT_EQ(shown.pixelColor(2, 2), shown.pixelColor(shown.width() - 2, 2));
}

TEST_F(ImageTest, WithoutAPictureItStillTakesClicks)
{
    int clicks = 0;
    int windowClicks = 0;
    Images->Click = [&windowClicks] { ++windowClicks; };
    QTest::mouseClick(&View(), Qt::LeftButton);
    Images->Image1.Click = [&clicks] { ++clicks; };
    QTest::mouseClick(&View(), Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(windowClicks, 0);
}

TEST_F(ImageTest, AnElementOfAControlArrayKeepsItsName)
{
    EXPECT_EQ(Find<QWidget>(*Images, u"Image2(7)"_s).accessibleName(), u"Image2(7)"_s);
}
} // namespace

} // namespace lineforge
