#include "platform/canvas/PictureBox.h"
#include "qt/Frames.h"
#include "qt/PaintCounter.h"
#include "qt/WindowTest.h"

#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct ScrollForm : Form {
    ScrollForm() : Form(u"ScrollForm", u"Scroll", {6000, 4000}) {}
    PictureBox Picture1{*this, u"Picture1", {0, 0, 5000, 12750}};
    ScrollBar VScroll1{*this, u"VScroll1", {5100, 0, 255, 3900}, 8000, 100, 1500};
};

struct ScrollBarTest : WindowTest {
    Window<ScrollForm> Scrolls{System()};
    int Changes = 0;
    void SetUp() override
    {
        Scrolls->VScroll1.Change = [this] {
            ++Changes;
            Scrolls->Picture1.Top = -Scrolls->VScroll1.Value;
        };
        Scrolls->Visible = true;
    }
    // As the machine tells it.
    static void TurnWheelOver(QWidget& widget)
    {
        QWheelEvent turn(QPointF(50, 50), widget.mapToGlobal(QPointF(50, 50)), {}, {0, -120}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&turn);
        qApp->notify(&widget, &turn);
    }
    QScrollBar& Bar() { return Find<QScrollBar>(*Scrolls, u"VScroll1"_s); }
};

TEST_F(ScrollBarTest, StandsUpright_WithItsStepsAndItsMaximum)
{
    EXPECT_EQ(Bar().orientation(), Qt::Vertical);
    EXPECT_EQ(Bar().minimum(), 0);
    EXPECT_EQ(Bar().maximum(), 8000);
    EXPECT_EQ(Bar().singleStep(), 100);
    EXPECT_EQ(Bar().pageStep(), 1500);
    EXPECT_EQ(Changes, 0);
}

TEST_F(ScrollBarTest, TheUserScrolls_OneChangeAStep)
{
    Bar().triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(Scrolls->VScroll1.Value.value(), 1500);
    EXPECT_EQ(Changes, 1);
    Bar().triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(Scrolls->VScroll1.Value.value(), 1400);
    EXPECT_EQ(Changes, 2);
}

TEST_F(ScrollBarTest, AValueThatTheProgramSetsShows_AndIsOneChange)
{
    Scrolls->VScroll1.Value = 700;
    EXPECT_EQ(Bar().value(), 700);
    EXPECT_EQ(Changes, 1);
    Scrolls->VScroll1.Value = 700;
    EXPECT_EQ(Changes, 1);
}

TEST_F(ScrollBarTest, AGrownMaximumHoldsAtOnce)
{
    Scrolls->VScroll1.Max = 8500;
    EXPECT_EQ(Bar().maximum(), 8500);
    EXPECT_EQ(Changes, 0);
    Bar().triggerAction(QAbstractSlider::SliderToMaximum);
    EXPECT_EQ(Scrolls->VScroll1.Value.value(), 8500);
}

TEST_F(ScrollBarTest, AShrunkenMaximumTakesTheValueAlong_InOneChange)
{
    Scrolls->VScroll1.Value = 7000;
    Scrolls->VScroll1.Max = 300;
    EXPECT_EQ(Bar().value(), 300);
    EXPECT_EQ(Scrolls->VScroll1.Value.value(), 300);
    EXPECT_EQ(Changes, 2);
}

TEST_F(ScrollBarTest, ValuesThatComeFast_ShareAPaint_TheLastOneShows)
{
    HeldClocks clocks;
    PassAFrame(clocks);
    const PaintCounter counter(Bar());
    for (int step = 1; step <= 1000; ++step) {
        Scrolls->VScroll1.Value = step;
        ServeEvents();
    }
    EXPECT_EQ(Bar().value(), 1000);
    PassAFrame(clocks);
    EXPECT_EQ(counter.Paints, 1);

    Scrolls->VScroll1.Value = 2000;
    PassAFrame(clocks);
    EXPECT_EQ(counter.Paints, 2);
}

TEST_F(ScrollBarTest, TheWheelOverThePictureScrolls)
{
    QWidget& picture = Find<QWidget>(*Scrolls, u"Picture1"_s);
    TurnWheelOver(picture);
    EXPECT_GT(Scrolls->VScroll1.Value.value(), 0);
    EXPECT_EQ(picture.y(), PixelScale().ToPixels(-Scrolls->VScroll1.Value.value()));
}

TEST_F(ScrollBarTest, DisabledItStaysWhereItIs_AlsoForTheWheel)
{
    Scrolls->VScroll1.Enabled = false;
    TurnWheelOver(Find<QWidget>(*Scrolls, u"Picture1"_s));
    EXPECT_EQ(Scrolls->VScroll1.Value.value(), 0);
}
} // namespace

} // namespace lineforge
