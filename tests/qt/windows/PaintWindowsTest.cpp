#include "qt/PaintCounter.h"
#include "qt/WindowTest.h"
#include "qt/views/LabelView.h"
#include "support/Clocks.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace lineforge
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
struct PaintForm : Form {
    PaintForm() : Form(u"PaintForm", u"Painted", {6000, 3000}) {}
    Label Label1{*this, u"Label1", {150, 150, 3000, 255}, u"before"};
    TextBox Text1{*this, u"Text1", {150, 600, 3000, 315}};
    Button Command1{*this, u"Command1", {150, 1200, 3000, 375}, u"Press"};
    Timer Timer1{*this, u"Timer1", 1};
};

struct PaintWindowsTest : WindowTest {
    Window<PaintForm> Painted{System()};
    void SetUp() override
    {
        Painted->Visible = true;
        Activate(*Painted);
        ServeEvents();
    }
    QWidget& LabelWidget() { return Find<QWidget>(*Painted, u"Label1"_s); }
    // What stands on the screen, whatever the widgets would paint by now.
    QImage OnScreen()
    {
        const QWidget& window = ViewOf(*Painted);
        const QPoint place = LabelWidget().mapTo(&window, QPoint());
        return window.screen()
            ->grabWindow(window.winId(), place.x(), place.y(), LabelWidget().width(), LabelWidget().height())
            .toImage();
    }
};

TEST_F(PaintWindowsTest, AChangedLabelIsOnTheScreen)
{
    const QImage before = OnScreen();
    const PaintCounter counter(LabelWidget());
    Painted->Label1.Caption = u"after"_s;
    EXPECT_EQ(OnScreen(), before);

    Machine().Loop().PaintWindows();

    EXPECT_GT(counter.Paints, 0);
    EXPECT_NE(OnScreen(), before);
    EXPECT_EQ(OnScreen(), LabelWidget().window()->grab().toImage().copy(
                              {LabelWidget().mapTo(LabelWidget().window(), QPoint()), LabelWidget().size()}));
}

TEST_F(PaintWindowsTest, AWindowThatIsHidden_StaysHidden_AndPaintsNothing)
{
    Painted->Visible = false;
    const PaintCounter counter(LabelWidget());
    Painted->Label1.Caption = u"after"_s;

    Machine().Loop().PaintWindows();

    EXPECT_EQ(counter.Paints, 0);
    EXPECT_FALSE(ViewOf(*Painted).isVisible());
}

TEST_F(PaintWindowsTest, NoTimerIsServedMeanwhile)
{
    QStringList served;
    QTimer::singleShot(0, qApp, [&served] { served += u"single shot"_s; });
    Painted->Timer1.Tick = [&served] { served += u"tick"_s; };
    HeldClocks clocks;
    Painted->Timer1.Enabled = true;
    clocks.LetPass(5ms);

    Machine().Loop().PaintWindows();

    EXPECT_EQ(served, QStringList());
    ServeEvents();
    EXPECT_TRUE(served.contains(u"single shot"_s));
    EXPECT_TRUE(served.contains(u"tick"_s));
}

TEST_F(PaintWindowsTest, NoQueuedCallIsServedMeanwhile)
{
    int calls = 0;
    QMetaObject::invokeMethod(
        qApp, [&calls] { ++calls; }, Qt::QueuedConnection);

    Machine().Loop().PaintWindows();

    EXPECT_EQ(calls, 0);
    ServeEvents();
    EXPECT_EQ(calls, 1);
}

TEST_F(PaintWindowsTest, NoMouseAndNoKeyEventIsServedMeanwhile)
{
    int clicks = 0;
    Painted->Command1.Click = [&clicks] { ++clicks; };
    auto& button = Find<QPushButton>(*Painted, u"Command1"_s);
    const QPointF middle = QRectF(button.rect()).center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        QCoreApplication::postEvent(
            &button, new QMouseEvent(type, middle, button.mapToGlobal(middle), Qt::LeftButton,
                                     type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier));
    QCoreApplication::postEvent(&Find<QWidget>(*Painted, u"Text1"_s),
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, u"a"_s));

    Machine().Loop().PaintWindows();

    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(Painted->Text1.Text.value(), QString());
    ServeEvents();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(Painted->Text1.Text.value(), u"a"_s);
}

TEST_F(PaintWindowsTest, WhatTheDesktopSent_WaitsAsWell)
{
    int clicks = 0;
    Painted->Command1.Click = [&clicks] { ++clicks; };
    auto& button = Find<QPushButton>(*Painted, u"Command1"_s);
    ASSERT_NE(ViewOf(*Painted).windowHandle(), nullptr);
    const QPoint middle = button.mapTo(&ViewOf(*Painted), button.rect().center());

    // The click comes by the window system, as soon as anything is served.
    QTimer::singleShot(
        0, qApp, [this, middle] { QTest::mouseClick(ViewOf(*Painted).windowHandle(), Qt::LeftButton, {}, middle); });
    Machine().Loop().PaintWindows();

    EXPECT_EQ(clicks, 0);
    ServeEvents();
    EXPECT_EQ(clicks, 1);
}
} // namespace

} // namespace lineforge
