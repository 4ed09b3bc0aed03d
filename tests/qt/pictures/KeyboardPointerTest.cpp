#include "qt/pictures/KeyboardPointer.h"

#include "platform/canvas/PictureBox.h"
#include "qt/WindowTest.h"

#include <QScrollBar>
#include <QTest>

#include <ostream>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// A picture twice as tall as its window, with a bar that scrolls it, and a picture that doesn't know the mouse.
struct PointedForm : Form {
    PointedForm() : Form(u"PointedForm", u"Pointing", {6000, 4500})
    {
        Picture1.MouseDown = [this](int button, int shift, double x, double y) { Note(u"down", button, shift, x, y); };
        Picture1.MouseMove = [this](int button, int shift, double x, double y) { Note(u"move", button, shift, x, y); };
        Picture1.MouseUp = [this](int button, int shift, double x, double y) { Note(u"up", button, shift, x, y); };
        Picture1.DblClick = [this] { Story += u"double"_s; };
        VScroll1.Change = [this] { Picture1.Top = -VScroll1.Value; };
    }
    void Note(QStringView what, int button, int shift, double x, double y)
    {
        Story += u"%1 %2 %3"_s.arg(what).arg(button).arg(shift);
        At = {static_cast<int>(x), static_cast<int>(y)};
    }
    QStringList TakeStory() { return std::exchange(Story, {}); }

    PictureBox Picture1{*this, u"Picture1", {0, 0, 4500, 9000}};
    ScrollBar VScroll1{*this, u"VScroll1", {4500, 0, 255, 4500}, 4500, 100, 1500};
    Button Command1{*this, u"Command1", {4800, 150, 975, 375}, u"Records"};
    PictureBox Picture2{*this, u"Picture2", {4800, 600, 975, 375}};
    QStringList Story;
    Point At; // of the last event
};

class KeyboardPointerTest : public WindowTest
{
protected:
    void SetUp() override
    {
        Pointed->Visible = true;
        Activate(*Pointed);
        Find<QWidget>(*Pointed, u"Command1"_s).setFocus(Qt::TabFocusReason);
        Picture().setFocus(Qt::TabFocusReason);
    }
    QWidget& Picture() { return Find<QWidget>(*Pointed, u"Picture1"_s); }
    QWidget& Pointer() { return Find<QWidget>(*Pointed, KeyboardPointer::Name); }
    QPoint Place() { return Pointer().geometry().center(); }
    void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&Picture(), key, modifiers); }
    void Repeat(Qt::Key key)
    {
        QKeyEvent event(QEvent::KeyPress, key, {}, {}, true);
        QCoreApplication::sendEvent(&Picture(), &event);
    }
    // Told by the last event of the mouse.
    QPoint Told() const { return {PixelScale().ToPixels(Pointed->At.X), PixelScale().ToPixels(Pointed->At.Y)}; }

    mutable Window<PointedForm> Pointed{System()};
};

TEST_F(KeyboardPointerTest, IsSeenWhileThePictureHasTheFocus_FirstInTheMiddleOfWhatIsSeenOfIt)
{
    EXPECT_TRUE(Pointer().isVisible());
    EXPECT_EQ(Place(), QRect(0, 0, Picture().width(), Picture().parentWidget()->height()).center());
    EXPECT_EQ(Pointer().accessibleName(), u"Pointer"_s);

    Find<QWidget>(*Pointed, u"Command1"_s).setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(Pointer().isVisible());
}

TEST_F(KeyboardPointerTest, OnlyAPictureThatListensToTheMouseHasOne)
{
    EXPECT_EQ(Find<QWidget>(*Pointed, u"Picture2"_s).findChild<QWidget*>(KeyboardPointer::Name), nullptr);
    EXPECT_EQ(Find<QWidget>(*Pointed, u"Picture2"_s).focusPolicy(), Qt::NoFocus);
}

struct Way {
    Qt::Key Key;
    QPoint Direction;
};
std::ostream& operator<<(std::ostream& out, const Way& way)
{
    return out << QKeySequence(way.Key).toString().toStdString();
}
class ArrowTest : public KeyboardPointerTest, public testing::WithParamInterface<Way>
{
};
INSTANTIATE_TEST_SUITE_P(Arrows, ArrowTest,
                         testing::Values(Way{Qt::Key_Left, {-1, 0}}, Way{Qt::Key_Right, {1, 0}},
                                         Way{Qt::Key_Up, {0, -1}}, Way{Qt::Key_Down, {0, 1}}));

TEST_P(ArrowTest, MovesByFive_ByOneWithCtrl_ByTwentyWhileHeldDown)
{
    const QPoint before = Place();
    Type(GetParam().Key);
    EXPECT_EQ(Place(), before + 5 * GetParam().Direction);
    EXPECT_EQ(Told(), Place());
    Type(GetParam().Key, Qt::ControlModifier);
    EXPECT_EQ(Place(), before + 6 * GetParam().Direction);
    Repeat(GetParam().Key);
    EXPECT_EQ(Place(), before + 26 * GetParam().Direction);
    EXPECT_EQ(Pointed->Story, QStringList({u"move 0 0"_s, u"move 0 2"_s, u"move 0 0"_s}));
}

TEST_F(KeyboardPointerTest, StaysOnThePicture)
{
    for (int steps = 0; steps < 100; ++steps)
        Repeat(Qt::Key_Left);
    EXPECT_EQ(Place().x(), 0);
    for (int steps = 0; steps < 100; ++steps)
        Repeat(Qt::Key_Right);
    EXPECT_EQ(Place().x(), Picture().width() - 1);
}

TEST_F(KeyboardPointerTest, Space_IsAClick)
{
    Type(Qt::Key_Space);
    EXPECT_EQ(Pointed->Story, QStringList({u"down 1 0"_s, u"up 1 0"_s}));
    EXPECT_EQ(Told(), Place());
}

TEST_F(KeyboardPointerTest, CtrlSpace_IsAClickWithCtrl)
{
    Type(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(Pointed->Story, QStringList({u"down 1 2"_s, u"up 1 2"_s}));
}

TEST_F(KeyboardPointerTest, Enter_IsADoubleClick)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Type(key);
        EXPECT_EQ(Pointed->TakeStory(), QStringList({u"down 1 0"_s, u"up 1 0"_s, u"double"_s, u"up 1 0"_s}));
    }
}

TEST_F(KeyboardPointerTest, ShiftSpace_HoldsTheButton_AndTheNextSpaceLetsGo)
{
    Type(Qt::Key_Space, Qt::ShiftModifier);
    Type(Qt::Key_Right);
    Type(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Pointed->TakeStory(), QStringList({u"down 1 0"_s, u"move 1 0"_s, u"move 1 1"_s}));
    Type(Qt::Key_Space);
    Type(Qt::Key_Right);
    EXPECT_EQ(Pointed->Story, QStringList({u"up 1 0"_s, u"move 0 0"_s}));
}

TEST_F(KeyboardPointerTest, CtrlShiftSpace_TellsCtrlOfThePress)
{
    Type(Qt::Key_Space, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(Pointed->Story, QStringList{u"down 1 2"_s});
}

TEST_F(KeyboardPointerTest, AKeyThatIsHeldDown_PressesOnce)
{
    Type(Qt::Key_Space, Qt::ShiftModifier);
    Repeat(Qt::Key_Space);
    Repeat(Qt::Key_Return);
    EXPECT_EQ(Pointed->Story, QStringList{u"down 1 0"_s});
}

TEST_F(KeyboardPointerTest, HeldButton_IsShown)
{
    const QImage free = Pointer().grab().toImage();
    Type(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_NE(Pointer().grab().toImage(), free);
    Type(Qt::Key_Escape);
    EXPECT_EQ(Pointer().grab().toImage(), free);
}

TEST_F(KeyboardPointerTest, EscapeAndTheFocusThatGoes_LetGo_Once)
{
    Type(Qt::Key_Space, Qt::ShiftModifier);
    Type(Qt::Key_Escape);
    Type(Qt::Key_Escape);
    EXPECT_EQ(Pointed->TakeStory(), QStringList({u"down 1 0"_s, u"up 1 0"_s}));

    Type(Qt::Key_Space, Qt::ShiftModifier);
    Find<QWidget>(*Pointed, u"Command1"_s).setFocus(Qt::TabFocusReason);
    ServeEvents();
    EXPECT_EQ(Pointed->Story, QStringList({u"down 1 0"_s, u"up 1 0"_s}));
}

TEST_F(KeyboardPointerTest, PressThatTakesTheFocusAway_IsReleasedAtOnce)
{
    Pointed->Picture1.MouseDown = [this](int, int, double, double) {
        Find<QWidget>(*Pointed, u"Command1"_s).setFocus(Qt::OtherFocusReason);
    };
    Type(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(Pointed->Story, QStringList{u"up 1 0"_s});
}

TEST_F(KeyboardPointerTest, BelowTheEdgeOfTheWindow_ThePictureIsScrolled_AndBack)
{
    const int seen = Picture().parentWidget()->height();
    while (Place().y() < seen + 30)
        Type(Qt::Key_Down);
    EXPECT_GT(Pointed->VScroll1.Value, 0);
    EXPECT_LT(Picture().mapToParent(Place()).y(), seen);

    while (Place().y() > 5)
        Type(Qt::Key_Up);
    EXPECT_GE(Picture().mapToParent(Place()).y(), 0);
    EXPECT_LE(Pointed->VScroll1.Value, PixelScale().ToTwips(Place().y()));
}

TEST_F(KeyboardPointerTest, PageKeys_ScrollThePictureBelowThePointer)
{
    const QPoint onScreen = Picture().mapToParent(Place());
    Type(Qt::Key_PageDown);
    EXPECT_EQ(Pointed->VScroll1.Value, 1500);
    EXPECT_EQ(Picture().mapToParent(Place()), onScreen);
    EXPECT_EQ(Told(), Place());
    Type(Qt::Key_End);
    EXPECT_EQ(Pointed->VScroll1.Value, 4500);
    Type(Qt::Key_Home);
    EXPECT_EQ(Pointed->VScroll1.Value, 0);
    EXPECT_EQ(Picture().mapToParent(Place()), onScreen);
}

TEST_F(KeyboardPointerTest, PictureScrolledAwayMeanwhile_ThePointerComesIntoView)
{
    Pointed->VScroll1.Value = 4500;
    Type(Qt::Key_Space);
    EXPECT_GE(Picture().mapToParent(Place()).y(), 0);
    EXPECT_EQ(Told(), Place());
}

TEST_F(KeyboardPointerTest, MouseThatIsPressed_TakesOver)
{
    Type(Qt::Key_Space, Qt::ShiftModifier);
    Pointed->Story.clear();
    QTest::mousePress(&Picture(), Qt::LeftButton, {}, {10, 10});
    EXPECT_EQ(Pointed->Story, QStringList({u"up 1 0"_s, u"down 1 0"_s}));
    EXPECT_FALSE(Pointer().isVisible());
    QTest::mouseRelease(&Picture(), Qt::LeftButton, {}, {10, 10});

    Type(Qt::Key_Right);
    EXPECT_TRUE(Pointer().isVisible());
}

TEST_F(KeyboardPointerTest, MouseThatIsOnlyMoved_EndsNoDrag)
{
    Type(Qt::Key_Space, Qt::ShiftModifier);
    Pointed->Story.clear();
    QTest::mouseMove(&Picture(), {30, 30});
    ServeEvents();
    EXPECT_EQ(Pointed->Story, QStringList());
    Type(Qt::Key_Escape);
    Pointed->Story.clear();
    QTest::mouseMove(&Picture(), {40, 40});
    ServeEvents();
    EXPECT_EQ(Pointed->Story.size(), 1) << "the picture doesn't hear of the mouse at all";
}

TEST_F(KeyboardPointerTest, WhileTheMouseHoldsItsButton_KeysDoNothing)
{
    QTest::mousePress(ViewOf(*Pointed).windowHandle(), Qt::LeftButton, {},
                      Picture().mapTo(&ViewOf(*Pointed), QPoint(10, 10)));
    Pointed->Story.clear();
    Type(Qt::Key_Right);
    Type(Qt::Key_Space);
    EXPECT_EQ(Pointed->Story, QStringList());
    QTest::mouseRelease(ViewOf(*Pointed).windowHandle(), Qt::LeftButton, {},
                        Picture().mapTo(&ViewOf(*Pointed), QPoint(10, 10)));
}

TEST_F(KeyboardPointerTest, OtherKeys_AreLeftToTheWindow)
{
    const QPoint before = Place();
    Type(Qt::Key_Left, Qt::AltModifier);
    Type(Qt::Key_A);
    EXPECT_EQ(Place(), before);
    EXPECT_EQ(Pointed->Story, QStringList());
    Type(Qt::Key_Tab);
    EXPECT_FALSE(Picture().hasFocus());
}

TEST_F(KeyboardPointerTest, WindowThatOnlyComesBack_ShowsItAsItWas)
{
    Window<PointedForm> other(System());
    other->Visible = true;
    Activate(*other);
    EXPECT_TRUE(Find<QWidget>(*other, u"Picture1"_s).hasFocus());
    EXPECT_FALSE(Find<QWidget>(*other, KeyboardPointer::Name).isVisible());
    EXPECT_FALSE(Pointer().isVisible());
    Activate(*Pointed);
    EXPECT_TRUE(Pointer().isVisible());
}

TEST_F(KeyboardPointerTest, PressThatUnloadsTheWindow_IsSurvived)
{
    Pointed->Picture1.MouseDown = [this](int, int, double, double) { Pointed.Unload(); };
    Type(Qt::Key_Return);
    EXPECT_FALSE(Pointed.IsLoaded());
    PassEventLoop();
}

} // namespace

} // namespace lineforge
