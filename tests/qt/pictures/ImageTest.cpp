#include "qt/WindowTest.h"
#include "qt/views/ClickableWidgets.h"

#include <QAccessible>
#include <QKeyEvent>
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

// Like a tool: it has a handler before it is shown.
struct ToolForm : Form {
    ToolForm() : Form(u"ToolForm", u"Tools", {6000, 3000})
    {
        Image2.ToolTipText = u"Line Tool"_s;
        Image2.Click = [this] { ++Clicks; };
    }
    TextBox Text1{*this, u"Text1", {300, 1500, 1500, 315}};
    Image Image1{*this, u"Image1", {300, 300, 345, 345}};
    Image Image2{*this, u"Image2", {900, 300, 345, 345}};
    int Clicks = 0;
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
    EXPECT_EQ(Find<QWidget>(*Images, u"Image2(7)"_s).accessibleName(), u"Picture"_s);
}

struct ToolImageTest : WindowTest {
    Window<ToolForm> Tools{System()};
    void SetUp() override
    {
        Tools->Visible = true;
        Activate(*Tools);
        Box().setFocus();
    }
    QWidget& Box() { return Find<QWidget>(*Tools, u"Text1"_s); }
    QWidget& Plain() { return Find<QWidget>(*Tools, u"Image1"_s); }
    QWidget& Tool() { return Find<QWidget>(*Tools, u"Image2"_s); }
};

TEST_F(ToolImageTest, TabReachesWhatCanBeClicked_AndNothingElse)
{
    QTest::keyClick(&Box(), Qt::Key_Tab);
    EXPECT_TRUE(Tool().hasFocus());
    QTest::keyClick(&Tool(), Qt::Key_Tab);
    EXPECT_TRUE(Box().hasFocus());
}

TEST_F(ToolImageTest, SpaceAndEnterPressIt)
{
    Tool().setFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(&Tool(), key);
    EXPECT_EQ(Tools->Clicks, 3);
    QTest::keyClick(&Tool(), Qt::Key_A);
    EXPECT_EQ(Tools->Clicks, 3);
}

TEST_F(ToolImageTest, AKeyThatIsHeldDown_PressesItOnce)
{
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, true);
    QCoreApplication::sendEvent(&Tool(), &repeated);
    EXPECT_EQ(Tools->Clicks, 0);
}

TEST_F(ToolImageTest, AClickLeavesTheFocusWhereItIs)
{
    QTest::mouseClick(&Tool(), Qt::LeftButton);
    EXPECT_EQ(Tools->Clicks, 1);
    EXPECT_TRUE(Box().hasFocus());
}

TEST_F(ToolImageTest, TheFocusIsSeen)
{
    Tools->Image2.Picture = Halves();
    const QImage without = Tool().grab().toImage();
    Tool().setFocus(Qt::TabFocusReason);
    EXPECT_NE(Tool().grab().toImage(), without);
    Box().setFocus();
    EXPECT_EQ(Tool().grab().toImage(), without);
}

TEST_F(ToolImageTest, ForReadersItIsAButtonNamedByItsToolTip)
{
    EXPECT_EQ(Tool().toolTip(), u"Line Tool"_s);
    QAccessibleInterface* tool = QAccessible::queryAccessibleInterface(&Tool());
    EXPECT_EQ(tool->role(), QAccessible::Button);
    EXPECT_EQ(tool->text(QAccessible::Name), u"Line Tool"_s);
    EXPECT_TRUE(tool->state().focusable);
    ASSERT_TRUE(tool->actionInterface());
    EXPECT_TRUE(tool->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    tool->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(Tools->Clicks, 0) << "whoever asks waits for what the press does";
    ServeEvents();
    EXPECT_EQ(Tools->Clicks, 1);
}

TEST_F(ToolImageTest, ForReadersAnImageWithoutAHandlerIsAPicture)
{
    QAccessibleInterface* plain = QAccessible::queryAccessibleInterface(&Plain());
    EXPECT_EQ(plain->role(), QAccessible::Graphic);
    EXPECT_FALSE(plain->state().focusable);
    EXPECT_FALSE(plain->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
}
} // namespace

} // namespace lineforge
