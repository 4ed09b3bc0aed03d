#include "platform/canvas/PictureBox.h"
#include "qt/WindowTest.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QTest>
#include <QWindow>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct PlainForm : Form {
    PlainForm() : Form(u"PlainForm", u"A plain window", {6000, 3000}) {}
    Button Command1{*this, u"Command1", {150, 150, 1200, 375}, u"OK"};
    MultimediaControl MMControl1{*this, u"MMControl1"};
};

struct FormWithMenus : Form {
    FormWithMenus() : Form(u"FormWithMenus", u"A window with menus", {6000, 3000}) {}
    MenuItem mnuFile{Menus, u"mnuFile", u"&File"};
    MenuItem Open{mnuFile, u"Open", u"&Open"};
};

struct WindowViewTest : WindowTest {
    Window<PlainForm> Plain{System()};
    QMainWindow& View() { return static_cast<QMainWindow&>(ViewOf(*Plain)); }
    static QRect Available() { return QGuiApplication::primaryScreen()->availableGeometry(); }
    // Once the desktop has put its frame around it.
    QRect WithFrame()
    {
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&View()));
        EXPECT_FALSE(View().windowHandle()->frameMargins().isNull());
        return View().frameGeometry();
    }
};

TEST_F(WindowViewTest, HiddenItHasNoWidgetsAtAll)
{
    Plain.Load();
    Plain->Caption = u"Changed"_s;
    EXPECT_EQ(System().WidgetOf(*Plain), nullptr);
    Plain->Visible = true;
    EXPECT_EQ(View().windowTitle(), u"Changed"_s);
}

TEST_F(WindowViewTest, AWindowThatItsLoadHandlerShowsAppears)
{
    Plain.Install = [](PlainForm& form) { form.Load = [&form] { form.Show(); }; };
    Plain.Load();
    EXPECT_TRUE(View().isVisible());
}

TEST_F(WindowViewTest, HidesAndComesBack_TheSameWindow)
{
    Plain->Visible = true;
    const QWidget* first = &View();
    Plain->Hide();
    EXPECT_FALSE(View().isVisible());
    Plain->Show();
    EXPECT_TRUE(View().isVisible());
    EXPECT_EQ(&View(), first);
}

TEST_F(WindowViewTest, ShowBringsAWindowBeforeTheOthers_AlsoWhenItIsOnTheScreenAlready)
{
    Window<FormWithMenus> other(System());
    Plain->Show();
    other->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ViewOf(*other)));
    Plain->Show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&View()));
}

TEST_F(WindowViewTest, AMinimisedWindow_ComesBack_WhenItIsShown)
{
    Plain->Show();
    View().showMinimized();
    Plain->Show();
    EXPECT_FALSE(View().isMinimized());

    View().showMinimized();
    Plain->Hide();
    Plain->Visible = true;
    EXPECT_FALSE(View().isMinimized());
    EXPECT_TRUE(View().isVisible());
}

TEST_F(WindowViewTest, AMaximisedWindow_StaysSo_WhenItIsShownAgain)
{
    Plain->Width = 4500;
    Plain->Show();
    View().showMaximized();
    View().setWindowState(View().windowState() | Qt::WindowMinimized);
    Plain->Show();
    EXPECT_TRUE(View().isMaximized());
    EXPECT_FALSE(View().isMinimized());
}

TEST_F(WindowViewTest, NameAndTitleFollow)
{
    Plain->Visible = true;
    EXPECT_EQ(View().objectName(), u"PlainForm"_s);
    EXPECT_EQ(View().windowTitle(), u"A plain window"_s);
    EXPECT_EQ(View().accessibleName(), u"A plain window"_s);
    Plain->Caption = u"Another"_s;
    EXPECT_EQ(View().windowTitle(), u"Another"_s);
    EXPECT_EQ(View().accessibleName(), u"Another"_s);
}

TEST_F(WindowViewTest, AMultimediaControlIsNotSeen)
{
    Plain->Visible = true;
    EXPECT_EQ(View().findChild<QWidget*>(u"MMControl1"_s), nullptr);
}

TEST_F(WindowViewTest, TheClientAreaIsExactlyTheDesign_WithAndWithoutMenus)
{
    Window<FormWithMenus> menus(System());
    Plain->Visible = true;
    menus->Visible = true;
    EXPECT_EQ(View().centralWidget()->size(), PixelScale().ToPixels(Size{6000, 3000}));
    EXPECT_EQ(View().findChild<QMenuBar*>(), nullptr);
    const auto& withMenus = static_cast<QMainWindow&>(ViewOf(*menus));
    EXPECT_EQ(withMenus.centralWidget()->size(), PixelScale().ToPixels(Size{6000, 3000}));
    EXPECT_TRUE(withMenus.menuBar()->isVisible());
    EXPECT_EQ(withMenus.centralWidget()->y(), withMenus.menuBar()->height());
}

TEST_F(WindowViewTest, ASizeThatTheProgramGivesIsThatOfTheWholeWindow)
{
    Plain->Width = 4500;
    Plain->Height = 3600;
    Plain->Visible = true;
    EXPECT_EQ(WithFrame().size(), PixelScale().ToPixels(Size{4500, 3600}));
    Plain->Height = 4500;
    EXPECT_EQ(WithFrame().height(), PixelScale().ToPixels(4500));
}

TEST_F(WindowViewTest, ASizeThatTheProgramGivesCutsNothingOff)
{
    Plain->Height = 2000;
    Plain->Visible = true;
    EXPECT_EQ(View().centralWidget()->height(), PixelScale().ToPixels(3000));
}

TEST_F(WindowViewTest, AWindowAsLargeAsTheScreenStaysWithinWhatIsFree)
{
    const Screen& screen = Machine().Bundle().Screen;
    Plain->Width = screen.Width;
    Plain->Height = screen.Height;
    Plain->Left = 3000;
    Plain->Visible = true;
    EXPECT_EQ(WithFrame(), Available());
}

TEST_F(WindowViewTest, WhereverItIsPut_WindowAndFrameStayWithinWhatIsFree)
{
    const Screen& screen = Machine().Bundle().Screen;
    Plain->Visible = true;
    for (const Point corner :
         {Point{-3000, -3000}, Point{screen.Width, screen.Height}, Point{screen.Width - 6000, 15}}) {
        Plain->Left = corner.X;
        Plain->Top = corner.Y;
        EXPECT_TRUE(Available().contains(WithFrame())) << corner.X << ", " << corner.Y;
    }
}

TEST_F(WindowViewTest, OnceItIsOnTheScreen_ItStaysWhereTheUserPutsIt)
{
    Plain->Visible = true;
    WithFrame();
    View().move(View().pos() + QPoint(30, 20));
    const QPoint put = View().pos();
    Plain->Hide();
    Plain->Show();
    WithFrame();
    EXPECT_EQ(View().pos(), put);
}

TEST_F(WindowViewTest, StandsWhereTheProgramPutsIt)
{
    Plain->Left = 1500;
    Plain->Top = 750;
    Plain->Visible = true;
    EXPECT_EQ(WithFrame().topLeft(), QPoint(PixelScale().ToPixels(1500), PixelScale().ToPixels(750)));
    Plain->Left = 1800;
    EXPECT_EQ(View().x(), PixelScale().ToPixels(1800));
}

TEST_F(WindowViewTest, UnplacedItStandsInTheMiddle)
{
    Plain->Visible = true;
    const QRect whole = WithFrame();
    EXPECT_NEAR(whole.center().x(), Available().center().x(), 1);
    EXPECT_NEAR(whole.center().y(), Available().center().y(), 1);
}

TEST_F(WindowViewTest, TopmostAndFramelessAreFlags)
{
    Plain->Topmost = true;
    Plain->Frameless = true;
    Plain->Width = 4500;
    Plain->Height = 3600;
    Plain->Visible = true;
    EXPECT_TRUE(View().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(View().windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(View().size(), PixelScale().ToPixels(Size{4500, 3600}));
}

TEST_F(WindowViewTest, Escape_ClosesAWindowWithoutAFrame_AndNoOther)
{
    Plain->Visible = true;
    Activate(*Plain);
    QTest::keyClick(View().windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(Plain.IsLoaded());

    Plain.Unload();
    Plain->Frameless = true;
    Plain->Visible = true;
    Activate(*Plain);
    QTest::keyClick(View().windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(Plain.IsLoaded());
}

TEST_F(WindowViewTest, OnlyAClickOnTheBareWindowIsItsOwn)
{
    int clicks = 0;
    Plain->Click = [&clicks] { ++clicks; };
    Plain->Visible = true;
    QTest::mouseClick(View().windowHandle(), Qt::LeftButton, {}, {300, 150});
    EXPECT_EQ(clicks, 1);
    Plain->Command1.Enabled = false;
    const QPoint onButton = Find<QWidget>(*Plain, u"Command1"_s).geometry().center();
    QTest::mouseClick(View().windowHandle(), Qt::LeftButton, {}, onButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(WindowViewTest, ADisabledWindowIsDead)
{
    int clicks = 0;
    Plain->Command1.Click = [&clicks] { ++clicks; };
    Plain->Visible = true;
    Plain->Enabled = false;
    QTest::mouseClick(&Find<QWidget>(*Plain, u"Command1"_s), Qt::LeftButton);
    EXPECT_EQ(clicks, 0);
}

TEST_F(WindowViewTest, ClosingByTheFrameIsTheProgramsBusiness)
{
    int asked = 0;
    Plain->CloseByFrame = [&asked] { ++asked; };
    Plain->Visible = true;
    EXPECT_FALSE(View().close());
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(View().isVisible());
}

TEST_F(WindowViewTest, ClosingByTheFrameUnloads_AndTheNextTouchMakesAFreshWindow)
{
    QStringList story;
    Plain.Install = [&story](PlainForm& form) { form.Unloading = [&story] { story += u"unloading"_s; }; };
    Plain->Visible = true;
    View().close();
    EXPECT_EQ(story, QStringList{u"unloading"_s});
    EXPECT_FALSE(Plain.IsLoaded());
    PassEventLoop();
    Plain->Visible = true;
    EXPECT_TRUE(View().isVisible());
}
} // namespace

} // namespace lineforge
