#include "program/ui/ProgressPanel.h"

#include "gedcom/GedcomTest.h"

namespace lineforge
{
namespace
{

class ProgressPanelTest : public GedcomTest
{
protected:
    TextPanel& Shown() { return P.Form12->Picture1; }
    ScrollBar& Bar() { return P.Form12->VScroll1; }
    void Print(int lines)
    {
        for (int line = 0; line < lines; ++line)
            Shown().Print(u"line");
    }
    int Step()
    {
        Machine.Loop.Yields = 0;
        StepPanel(P.Loop, Shown(), Bar());
        return Machine.Loop.Yields;
    }
};

TEST_F(ProgressPanelTest, TextFarFromThePanelsEnd_OnlyYields)
{
    Print(3);
    EXPECT_EQ(Step(), 1);
    EXPECT_EQ(Shown().Height.value(), 8000);
    EXPECT_EQ(Bar().Value.value(), 0);
    EXPECT_EQ(Bar().Max.value(), 8000);
}

TEST_F(ProgressPanelTest, TextNearThePanelsEnd_MakesItHigher_AndMovesTheBarByHalfOfThat)
{
    Print(7000 / TextPanel::LineHeight + 1);
    EXPECT_EQ(Step(), 2);
    EXPECT_EQ(Shown().Height.value(), 9000);
    EXPECT_EQ(Bar().Value.value(), 500);
    EXPECT_EQ(Bar().Max.value(), 8500);
}

TEST_F(ProgressPanelTest, TextExactlyAThousandFromTheEnd_IsNotYetNear)
{
    Shown().Height = 1000 + 10 * TextPanel::LineHeight;
    Print(10);
    EXPECT_EQ(Step(), 1);
    Print(1);
    EXPECT_EQ(Step(), 2);
}

TEST_F(ProgressPanelTest, Bar_MovesThePanelByTwice_AlsoByMillions)
{
    for (const int value : {0, 500, 8000, 200'000'000}) {
        Bar().Value = value;
        Bar().Change();
        EXPECT_EQ(Shown().Top.value(), -2 * value);
    }
}

TEST_F(ProgressPanelTest, NewestLine_StaysInView)
{
    for (int line = 0; line < 2000; ++line) {
        Print(1);
        StepPanel(P.Loop, Shown(), Bar());
        Bar().Change();
        const int bottom = Shown().Top + Shown().CurrentY();
        EXPECT_LE(bottom, P.Form12->Client.Height) << line;
        EXPECT_GT(bottom, 0) << line;
    }
}

// The window keeps the height that an earlier run has come to.
TEST_F(ProgressPanelTest, InAPanelThatIsHighAlready_TheNewestLineStaysInViewAsWell)
{
    Shown().Height = 100'000;
    Bar().Max = 50'000;
    for (int line = 0; line < 400; ++line) {
        Print(1);
        StepPanel(P.Loop, Shown(), Bar());
        Bar().Change();
        const int bottom = Shown().Top + Shown().CurrentY();
        EXPECT_LE(bottom, Bar().Height + TextPanel::LineHeight) << line;
        EXPECT_GT(bottom, 0) << line;
    }
    EXPECT_EQ(Shown().Height.value(), 100'000);
}

// A user who reads while the text comes.
class ReadingMeanwhileTest : public ProgressPanelTest
{
protected:
    ReadingMeanwhileTest() { Run(200); }

    void Run(int lines)
    {
        for (int line = 0; line < lines; ++line) {
            Print(1);
            StepPanel(P.Loop, Shown(), Bar());
        }
    }
    void AtNextStepScrollTo(int value)
    {
        Machine.Loop.AtNextYield([this, value] { Bar().Value = value; });
    }
    bool IsEndInView()
    {
        Bar().Change();
        return Shown().Top + Shown().CurrentY() <= Bar().Height;
    }
};

TEST_F(ReadingMeanwhileTest, ScrolledBack_StaysThere_WhileThePanelGrowsOn)
{
    const int height = Shown().Height;
    const int most = Bar().Max;
    AtNextStepScrollTo(700);
    Run(100);
    EXPECT_EQ(Bar().Value.value(), 700);
    EXPECT_GT(Shown().Height.value(), height);
    EXPECT_EQ(Bar().Max - most, (Shown().Height - height) / 2);
}

TEST_F(ReadingMeanwhileTest, ScrolledBackInTheYieldThatFollowsTheGrowth_StaysThereAsWell)
{
    int height = Shown().Height;
    const auto grows = [&] { return Shown().CurrentY() + TextPanel::LineHeight > height - 1000; };
    while (!grows())
        Run(1);
    Machine.Loop.AtNextYield([] {});
    AtNextStepScrollTo(700);
    Run(50);
    EXPECT_EQ(Bar().Value.value(), 700);
}

TEST_F(ReadingMeanwhileTest, ScrolledBackByLessThanALine_HasLeftTheEnd)
{
    while (Bar().Value == 0 || !IsEndInView())
        Run(1);
    const int end = (Shown().CurrentY() - Bar().Height + 1) / 2;
    AtNextStepScrollTo(end - 1);
    Run(20);
    EXPECT_EQ(Bar().Value.value(), end - 1);
}

TEST_F(ReadingMeanwhileTest, BackAtTheEnd_IsFollowedAgain)
{
    AtNextStepScrollTo(700);
    Run(50);
    EXPECT_FALSE(IsEndInView());
    AtNextStepScrollTo(Bar().Max);
    for (int line = 0; line < 200; ++line) {
        Run(1);
        EXPECT_TRUE(IsEndInView()) << line;
    }
}

TEST_F(ReadingMeanwhileTest, WhereTheReaderHadStoodAtTheEndBefore_IsNotTheEndAnyMore)
{
    const int before = Bar().Value;
    AtNextStepScrollTo(700);
    Run(100);
    AtNextStepScrollTo(before);
    Run(20);
    EXPECT_EQ(Bar().Value.value(), before);
}

TEST_F(ReadingMeanwhileTest, AnotherText_IsFollowedFromItsBeginning)
{
    AtNextStepScrollTo(700);
    Run(1);
    Shown().Cls();
    Bar().Value = 0;
    Run(100);
    EXPECT_TRUE(IsEndInView());
}

TEST_F(ReadingMeanwhileTest, ManyLinesWithoutAStep_DoNotShakeOffWhoFollows)
{
    Print(300);
    Run(1);
    EXPECT_FALSE(IsEndInView());
    Run(100);
    EXPECT_TRUE(IsEndInView());
}

TEST_F(ReadingMeanwhileTest, LastLinesOfARun_AreNotBroughtIntoViewForAReaderOfEarlierOnes)
{
    AtNextStepScrollTo(700);
    Run(1);
    Print(3);
    KeepLastLineInView(Shown(), Bar());
    EXPECT_EQ(Bar().Value.value(), 700);
}

} // namespace
} // namespace lineforge
