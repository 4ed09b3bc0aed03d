#include "gedcom/PanelStep.h"

#include "gedcom/GedcomTest.h"

namespace lineforge
{
namespace
{

class PanelStepTest : public GedcomTest
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
        StepPanel(P, Shown(), Bar());
        return Machine.Loop.Yields;
    }
};

TEST_F(PanelStepTest, TextFarFromThePanelsEnd_OnlyYields)
{
    Print(3);
    EXPECT_EQ(Step(), 1);
    EXPECT_EQ(Shown().Height.value(), 8000);
    EXPECT_EQ(Bar().Value.value(), 0);
    EXPECT_EQ(Bar().Max, 8000);
}

TEST_F(PanelStepTest, TextNearThePanelsEnd_MakesItHigher_AndMovesTheBarByHalfOfThat)
{
    Print(7000 / TextPanel::LineHeight + 1);
    EXPECT_EQ(Step(), 2);
    EXPECT_EQ(Shown().Height.value(), 9000);
    EXPECT_EQ(Bar().Value.value(), 500);
    EXPECT_EQ(Bar().Max, 8500);
}

TEST_F(PanelStepTest, TextExactlyAThousandFromTheEnd_IsNotYetNear)
{
    Shown().Height = 1000 + 10 * TextPanel::LineHeight;
    Print(10);
    EXPECT_EQ(Step(), 1);
    Print(1);
    EXPECT_EQ(Step(), 2);
}

TEST_F(PanelStepTest, Bar_MovesThePanelByTwice_AlsoByMillions)
{
    for (const int value : {0, 500, 8000, 200'000'000}) {
        Bar().Value = value;
        Bar().Change();
        EXPECT_EQ(Shown().Top.value(), -2 * value);
    }
}

TEST_F(PanelStepTest, NewestLine_StaysInView)
{
    for (int line = 0; line < 2000; ++line) {
        Print(1);
        StepPanel(P, Shown(), Bar());
        Bar().Change();
        const int bottom = Shown().Top + Shown().CurrentY();
        EXPECT_LE(bottom, P.Form12->Client.Height) << line;
        EXPECT_GT(bottom, 0) << line;
    }
}

// The window keeps the height that an earlier run has come to.
TEST_F(PanelStepTest, InAPanelThatIsHighAlready_TheNewestLineStaysInViewAsWell)
{
    Shown().Height = 100'000;
    Bar().Max = 50'000;
    for (int line = 0; line < 400; ++line) {
        Print(1);
        StepPanel(P, Shown(), Bar());
        Bar().Change();
        const int bottom = Shown().Top + Shown().CurrentY();
        EXPECT_LE(bottom, Bar().Height + TextPanel::LineHeight) << line;
        EXPECT_GT(bottom, 0) << line;
    }
    EXPECT_EQ(Shown().Height.value(), 100'000);
}

} // namespace
} // namespace lineforge
