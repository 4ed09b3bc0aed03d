#include "platform/canvas/PictureBox.h"
#include "support/FakeClipboard.h"
#include "support/Pixels.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

constexpr Colour red = Rgb(255, 0, 0);
constexpr int pixel = PictureBox::TwipsPerPixel;
constexpr double twipsAMeter = 1440 / 0.0254;

// Two pictures of 400 by 300 pixels.
class PictureBoxImageTest : public testing::Test
{
protected:
    static QImage Filled(QSize size, double dotsAMeter)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        image.setDotsPerMeterX(qRound(dotsAMeter));
        image.setDotsPerMeterY(qRound(dotsAMeter));
        return image;
    }

    static void DrawOn(PictureBox& picture)
    {
        picture.Line({100, 100}, {1700, 1300});
        picture.ForeColor = red;
        picture.PrintAt({500, 400}, u"The Smiths"_s);
    }

    Container Window;
    PictureBox Picture{Window, u"Picture1", {0, 0, 400 * pixel, 300 * pixel}};
    PictureBox Other{Window, u"Picture2", {0, 0, 400 * pixel, 300 * pixel}};
};

TEST_F(PictureBoxImageTest, Image_IsTheDrawing_InItsOwnSize)
{
    DrawOn(Picture);

    const QImage image = Picture.Image();

    EXPECT_EQ(image, Picture.Drawing());
    EXPECT_NEAR(image.dotsPerMeterX(), twipsAMeter / pixel, 1);
    EXPECT_NEAR(image.dotsPerMeterY(), twipsAMeter / pixel, 1);
}

TEST_F(PictureBoxImageTest, ImageOfAnUntouchedPicture_IsItsBackground_AndCostsItNothing)
{
    Picture.BackColor = Rgb(192, 192, 192);

    const QImage image = Picture.Image();

    EXPECT_EQ(image.size(), QSize(400, 300));
    EXPECT_EQ(CountPixels(image, Rgb(192, 192, 192)), 400 * 300);
    EXPECT_TRUE(Picture.Drawing().isNull());
}

TEST_F(PictureBoxImageTest, ImageTaken_StaysAsItWas)
{
    DrawOn(Picture);
    const QImage image = Picture.Image();
    const QImage before = image.copy();

    Picture.Cls();
    DrawOn(Picture);
    Picture.Box({0, 0, 1500, 1000});

    EXPECT_EQ(image, before);
}

TEST_F(PictureBoxImageTest, CopyAndPaste_GiveTheSamePixels)
{
    DrawOn(Picture);
    FakeClipboard clipboard;
    clipboard.SetPicture(Picture.Image());

    Other.ShowPicture(clipboard.GetPicture());
    EXPECT_EQ(Other.Drawing(), Picture.Drawing());

    Picture.ShowPicture(clipboard.GetPicture());
    EXPECT_EQ(Other.Drawing(), Picture.Drawing()) << "and over itself";
}

TEST_F(PictureBoxImageTest, ShowPicture_WipesWhatWasThere_AndGoesToTheTopLeft)
{
    DrawOn(Picture);

    Picture.ShowPicture(Filled({40, 30}, twipsAMeter / pixel));

    EXPECT_EQ(CountPixels(Picture, red), 40 * 30);
    EXPECT_EQ(CountPixels(Picture, red, {0, 0, 40 * pixel, 30 * pixel}), 40 * 30);
    EXPECT_EQ(CountPixels(Picture, White), 400 * 300 - 40 * 30);
    EXPECT_EQ(Picture.CurrentX, 0);
    EXPECT_EQ(Picture.CurrentY, 0);
}

// As another program may put one on the clipboard.
TEST_F(PictureBoxImageTest, PictureWithoutTheColoursThatItsDotsName_IsShown)
{
    for (const QImage::Format format : {QImage::Format_Indexed8, QImage::Format_Mono, QImage::Format_MonoLSB}) {
        QImage nameless(40, 300, format);
        nameless.fill(1);
        nameless.setColorTable({});
        Picture.ShowPicture(nameless);
        EXPECT_EQ(Picture.Image().size(), QSize(400, 300)) << format;
    }
}

TEST_F(PictureBoxImageTest, DotsBeyondTheColoursOfAPicture_ShowTheBackground)
{
    QImage picture(4, 4, QImage::Format_Indexed8);
    picture.setColorTable({qRgb(255, 0, 0), qRgb(0, 0, 255)});
    picture.fill(200);
    Picture.ShowPicture(picture);
    EXPECT_EQ(Picture.Image().pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(PictureBoxImageTest, PictureOfCoarserDots_IsMadeLarger)
{
    Picture.ShowPicture(Filled({40, 30}, twipsAMeter / pixel / 2));

    EXPECT_EQ(CountPixels(Picture, red), 80 * 60);
    EXPECT_EQ(ColourAt(Picture, {79 * pixel, 59 * pixel}), red);
}

TEST_F(PictureBoxImageTest, PictureOfFinerDots_IsMadeSmaller)
{
    Picture.ShowPicture(Filled({40, 30}, 2 * twipsAMeter / pixel));

    EXPECT_EQ(CountPixels(Picture, red), 20 * 15);
}

TEST_F(PictureBoxImageTest, PictureWithoutAResolutionOfItsOwn_IsShownAsOnAScreen)
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::red);

    Picture.ShowPicture(image);

    EXPECT_EQ(CountPixels(Picture, red), 120 * 90) << "15 twips a dot";
}

TEST_F(PictureBoxImageTest, PictureLargerThanTheBox_IsCutOff)
{
    Picture.ShowPicture(Filled({500, 400}, twipsAMeter / pixel));

    EXPECT_EQ(Picture.Drawing().size(), QSize(400, 300));
    EXPECT_EQ(CountPixels(Picture, red), 400 * 300);
}

TEST_F(PictureBoxImageTest, PictureThatIsPartlyClear_LetsTheBackgroundThrough)
{
    QImage image(40, 30, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    Picture.BackColor = Rgb(192, 192, 192);

    Picture.ShowPicture(image);

    EXPECT_EQ(CountPixels(Picture, Rgb(192, 192, 192)), 400 * 300);
}

TEST_F(PictureBoxImageTest, PictureOfNothing_LeavesAnEmptyPicture)
{
    DrawOn(Picture);
    Picture.ShowPicture({});
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(PictureBoxImageTest, WhoeverShowsIt_IsToldOfTheWholePicture)
{
    QRect told;
    Picture.Changed = [&](const QRect& pixels) { told |= pixels; };
    Picture.ShowPicture(Filled({40, 30}, twipsAMeter / pixel));
    EXPECT_EQ(told, QRect(0, 0, 400, 300));

    told = {};
    Picture.ShowPicture(Filled({4, 3}, twipsAMeter / pixel));
    EXPECT_EQ(told, QRect(0, 0, 400, 300)) << "what the last one covered as well";
}

TEST_F(PictureBoxImageTest, ShownPicture_CanBeDrawnOn)
{
    Picture.ShowPicture(Filled({400, 300}, twipsAMeter / pixel));
    Picture.Line({0, 700}, {2000, 700});

    EXPECT_EQ(CountPixels(Picture, Black), 3 * 400);
}

} // namespace
} // namespace lineforge
