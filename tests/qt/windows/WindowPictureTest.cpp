#include "platform/canvas/PictureBox.h"
#include "qt/WindowTest.h"

#include <QMenuBar>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct PictureForm : Form {
    PictureForm() : Form(u"PictureForm", u"Pictured", {6000, 3000}) { Shade1.BackColor = Rgb(255, 0, 0); }
    MenuItem mnuFile{Menus, u"mnuFile", u"&File"};
    PictureBox Shade1{*this, u"Shade1", {1200, 600, 1500, 900}};
};

struct WindowPictureTest : WindowTest {
    Window<PictureForm> Pictured{System()};

    QColor ColourAt(const QImage& picture, Point place)
    {
        return picture.pixelColor(PixelScale().ToPixels(place.X), PixelScale().ToPixels(place.Y));
    }
};

TEST_F(WindowPictureTest, OfAShownWindow_IsWhatStandsBelowItsMenus)
{
    Pictured->Visible = true;
    ServeEvents();
    const QImage picture = Pictured->Picture();
    EXPECT_EQ(picture.size(), PixelScale().ToPixels(Size{6000, 3000}));
    EXPECT_GT(ViewOf(*Pictured).height(), picture.height()) << "the menus stand above";
    EXPECT_EQ(ColourAt(picture, {1950, 1050}), QColor(255, 0, 0));
    EXPECT_EQ(ColourAt(picture, {600, 1050}), ColourAt(picture, {4000, 1050}));
    EXPECT_NE(ColourAt(picture, {600, 1050}), QColor(255, 0, 0));
}

TEST_F(WindowPictureTest, IsUpToDate_BeforeTheWindowHasPaintedItself)
{
    Pictured->Visible = true;
    ServeEvents();
    Pictured->Shade1.Left = 3600;
    EXPECT_EQ(ColourAt(Pictured->Picture(), {4350, 1050}), QColor(255, 0, 0));
    EXPECT_NE(ColourAt(Pictured->Picture(), {1950, 1050}), QColor(255, 0, 0));
}

TEST_F(WindowPictureTest, OfAWindowBehindAnother_IsItsOwn)
{
    Pictured->Visible = true;
    Window<PictureForm> other(System());
    other->Shade1.BackColor = Rgb(0, 255, 0);
    other->Show();
    Activate(*other);
    EXPECT_EQ(ColourAt(Pictured->Picture(), {1950, 1050}), QColor(255, 0, 0));
}

TEST_F(WindowPictureTest, OfAWindowThatHasNeverBeenShown_IsNull)
{
    EXPECT_TRUE(Pictured->Picture().isNull());
}

TEST_F(WindowPictureTest, OfAHiddenWindow_IsWhatItWouldShow)
{
    Pictured->Visible = true;
    const QImage shown = Pictured->Picture();
    Pictured->Visible = false;
    EXPECT_EQ(Pictured->Picture(), shown);
}

TEST_F(WindowPictureTest, OfAFormThatNobodyShows_IsNull)
{
    EXPECT_TRUE(PictureForm().Picture().isNull());
}

TEST_F(WindowPictureTest, OfAWindowThatIsGone_IsNull)
{
    Pictured->Visible = true;
    bool wasNull = false;
    const auto grab = Pictured->Grab;
    Pictured.Unload();
    wasNull = grab().isNull();
    EXPECT_TRUE(wasNull);
}
} // namespace

} // namespace lineforge
