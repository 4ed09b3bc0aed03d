#include "map/items/HitLine.h"
#include "map/tools/ToolsTest.h"

#include <ostream>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::ValuesIn;
using testing::WithParamInterface;
using Rows = std::vector<int>;

struct Hit {
    const char* Name;
    Point From;
    Point To;
    Point Press;
    bool IsHit;
};

void PrintTo(const Hit& hit, std::ostream* out)
{
    *out << hit.Name << ", pressed at " << hit.Press.X << ", " << hit.Press.Y;
}

constexpr Point NorthWest{1000, 1000};
constexpr Point NorthEast{2000, 1000};
constexpr Point SouthWest{1000, 2000};
constexpr Point SouthEast{2000, 2000};

const Hit hits[] = {
    // The band of a level line, its ends left out, in both orders of the ends.
    {"level", NorthWest, NorthEast, {1500, 1000}, true},
    {"level", NorthWest, NorthEast, {1500, 981}, true},
    {"level", NorthWest, NorthEast, {1500, 980}, false},
    {"level", NorthWest, NorthEast, {1500, 1019}, true},
    {"level", NorthWest, NorthEast, {1500, 1020}, false},
    {"level", NorthWest, NorthEast, {1000, 1000}, false},
    {"level", NorthWest, NorthEast, {1001, 1000}, true},
    {"level", NorthWest, NorthEast, {1999, 1000}, true},
    {"level", NorthWest, NorthEast, {2000, 1000}, false},
    {"level to the left", NorthEast, NorthWest, {1500, 1000}, true},
    {"level to the left", NorthEast, NorthWest, {1500, 981}, true},
    {"level to the left", NorthEast, NorthWest, {1500, 980}, false},
    {"level to the left", NorthEast, NorthWest, {1500, 1019}, true},
    {"level to the left", NorthEast, NorthWest, {1500, 1020}, false},
    {"level to the left", NorthEast, NorthWest, {1001, 1000}, true},
    {"level to the left", NorthEast, NorthWest, {1999, 1000}, true},
    {"level to the left", NorthEast, NorthWest, {2000, 1000}, false},
    // Of an upright one.
    {"upright", NorthWest, SouthWest, {1000, 1500}, true},
    {"upright", NorthWest, SouthWest, {981, 1500}, true},
    {"upright", NorthWest, SouthWest, {980, 1500}, false},
    {"upright", NorthWest, SouthWest, {1019, 1500}, true},
    {"upright", NorthWest, SouthWest, {1020, 1500}, false},
    {"upright", NorthWest, SouthWest, {1000, 1000}, false},
    {"upright", NorthWest, SouthWest, {1000, 1001}, true},
    {"upright", NorthWest, SouthWest, {1000, 1999}, true},
    {"upright", NorthWest, SouthWest, {1000, 2000}, false},
    {"upwards", SouthWest, NorthWest, {1000, 1500}, true},
    {"upwards", SouthWest, NorthWest, {981, 1500}, true},
    {"upwards", SouthWest, NorthWest, {980, 1500}, false},
    {"upwards", SouthWest, NorthWest, {1019, 1500}, true},
    {"upwards", SouthWest, NorthWest, {1020, 1500}, false},
    {"upwards", SouthWest, NorthWest, {1000, 1001}, true},
    {"upwards", SouthWest, NorthWest, {1000, 1999}, true},
    {"upwards", SouthWest, NorthWest, {1000, 2000}, false},
    // Falling to the right: all of the rectangle but 20 above and below.
    {"falling", NorthWest, SouthEast, {1500, 1500}, true},
    {"falling", NorthWest, SouthEast, {1999, 1021}, true},
    {"falling", NorthWest, SouthEast, {1001, 1979}, true},
    {"falling", NorthWest, SouthEast, {1500, 1020}, false},
    {"falling", NorthWest, SouthEast, {1500, 1021}, true},
    {"falling", NorthWest, SouthEast, {1500, 1979}, true},
    {"falling", NorthWest, SouthEast, {1500, 1980}, false},
    {"falling", NorthWest, SouthEast, {1000, 1500}, false},
    {"falling", NorthWest, SouthEast, {1001, 1500}, true},
    {"falling", NorthWest, SouthEast, {2000, 1500}, false},
    {"falling", NorthWest, SouthEast, {1010, 1010}, false},
    // The same line the other way round: 20 more on all sides.
    {"falling, ends swapped", SouthEast, NorthWest, {1500, 1500}, true},
    {"falling, ends swapped", SouthEast, NorthWest, {1500, 980}, false},
    {"falling, ends swapped", SouthEast, NorthWest, {1500, 981}, true},
    {"falling, ends swapped", SouthEast, NorthWest, {1500, 2019}, true},
    {"falling, ends swapped", SouthEast, NorthWest, {1500, 2020}, false},
    {"falling, ends swapped", SouthEast, NorthWest, {980, 1500}, false},
    {"falling, ends swapped", SouthEast, NorthWest, {981, 1500}, true},
    {"falling, ends swapped", SouthEast, NorthWest, {2019, 1500}, true},
    {"falling, ends swapped", SouthEast, NorthWest, {2020, 1500}, false},
    {"falling, ends swapped", SouthEast, NorthWest, {1000, 1000}, false},
    // Rising to the right.
    {"rising", SouthWest, NorthEast, {1500, 1500}, true},
    {"rising", SouthWest, NorthEast, {1999, 981}, true},
    {"rising", SouthWest, NorthEast, {1500, 980}, false},
    {"rising", SouthWest, NorthEast, {1500, 2019}, true},
    {"rising", SouthWest, NorthEast, {1500, 2020}, false},
    {"rising", SouthWest, NorthEast, {1000, 1500}, false},
    {"rising", SouthWest, NorthEast, {2000, 1500}, false},
    // Its other way round: 20 more on the left and the right.
    {"rising, ends swapped", NorthEast, SouthWest, {1500, 1500}, true},
    {"rising, ends swapped", NorthEast, SouthWest, {1500, 1000}, false},
    {"rising, ends swapped", NorthEast, SouthWest, {1500, 1001}, true},
    {"rising, ends swapped", NorthEast, SouthWest, {1500, 1999}, true},
    {"rising, ends swapped", NorthEast, SouthWest, {1500, 2000}, false},
    {"rising, ends swapped", NorthEast, SouthWest, {980, 1010}, false},
    {"rising, ends swapped", NorthEast, SouthWest, {981, 1010}, true},
    {"rising, ends swapped", NorthEast, SouthWest, {2019, 1990}, true},
    {"rising, ends swapped", NorthEast, SouthWest, {2020, 1990}, false},
    // Nearly upright and nearly level ones have a band as well.
    {"steep", NorthWest, {1010, 2000}, {991, 1500}, true},
    {"steep", NorthWest, {1010, 2000}, {990, 1500}, false},
    {"steep", NorthWest, {1010, 2000}, {1019, 1500}, true},
    {"steep", NorthWest, {1010, 2000}, {1020, 1500}, false},
    {"flat", NorthWest, {2000, 1010}, {1500, 991}, true},
    {"flat", NorthWest, {2000, 1010}, {1500, 990}, false},
    {"flat", NorthWest, {2000, 1010}, {1500, 1019}, true},
    {"flat", NorthWest, {2000, 1010}, {1500, 1020}, false},
};

class LineHitTest : public ToolsTest, public WithParamInterface<Hit>
{
};

TEST_P(LineHitTest, ByTheRuleOfTheRectangle)
{
    GivenTools();
    GivenLine(0, {6000, 6000}, {7000, 6000});
    GivenLine(1, GetParam().From, GetParam().To);
    P.Map.SLines = 1;
    Choose(ToolSelection::LineMove);

    Press(GetParam().Press);

    EXPECT_EQ(P.Tools.LineMiss, GetParam().IsHit ? 0 : 1);
    EXPECT_EQ(P.Map.LineChain[0], GetParam().IsHit ? 1 : 2);
    EXPECT_EQ(IsLineHit(P.Map.LineArr[1], GetParam().Press), GetParam().IsHit);
}

INSTANTIATE_TEST_SUITE_P(Table, LineHitTest, ValuesIn(hits));

class LineChainTest : public ToolsTest
{
protected:
    // From row 1 on; row 0 stands far away.
    void GivenLines(const std::vector<std::pair<Point, Point>>& lines)
    {
        GivenTools();
        GivenLine(0, {7000, 9000}, {8000, 9000});
        int row = 0;
        for (const auto& [from, to] : lines)
            GivenLine(++row, from, to);
        P.Map.SLines = row;
        Choose(ToolSelection::LineMove);
    }

    Rows Chain() const
    {
        Rows rows;
        for (int entry = 0; entry <= P.Tools.ChainTop; ++entry)
            rows.push_back(P.Map.LineChain[entry]);
        return rows;
    }

    // Steps of 50 to the right, row 1 the first.
    void GivenLongChain(int lines)
    {
        std::vector<std::pair<Point, Point>> row;
        for (int step = 1; step <= lines; ++step)
            row.push_back({{step * 50, 3000}, {step * 50 + 50, 3000}});
        GivenLines(row);
    }

    static constexpr Point A{1000, 1000};
    static constexpr Point B{2000, 1000};
    static constexpr Point C{2000, 2000};
    static constexpr Point D{1000, 2000};
    static constexpr Point E{3000, 3000};
    static constexpr Point F{500, 3500};
    static constexpr Point OnAB{1500, 1000};
};

TEST_F(LineChainTest, LoneLine_IsItsOwnChain)
{
    GivenLines({{A, B}, {C, D}});

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{1}));
}

TEST_F(LineChainTest, FirstLineHit_Wins)
{
    GivenLines({{{900, 1000}, {2100, 1000}}, {A, B}});

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{1}));
}

struct Swapping {
    bool Second;
    bool Third;
};

class SwappedEndsTest : public LineChainTest, public WithParamInterface<Swapping>
{
};

TEST_P(SwappedEndsTest, LinesEndToEnd_AllCome)
{
    GivenLines({{A, B},
                GetParam().Second ? std::pair{C, B} : std::pair{B, C},
                GetParam().Third ? std::pair{E, C} : std::pair{C, E}});

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{1, 2, 3}));
}

INSTANTIATE_TEST_SUITE_P(Orders, SwappedEndsTest,
                         testing::Values(Swapping{false, false}, Swapping{false, true}, Swapping{true, false},
                                         Swapping{true, true}));

TEST_F(LineChainTest, MiddleLinePressed_TakesBothNeighbours)
{
    GivenLines({{D, A}, {A, B}, {B, C}});

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{2, 1, 3}));
}

TEST_F(LineChainTest, Fork_BothBranchesAreCarried_ButOnlyTheHigherIsFollowed)
{
    GivenLines({{A, B}, {B, C}, {B, E}, {C, D}, {E, F}});

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{1, 2, 3, 5}));
}

TEST_F(LineChainTest, NeighbourOnTheLowerSide_IsCarried_ButWhatHangsOnItIsNot)
{
    GivenLines({{E, D}, {D, A}, {A, B}, {B, C}});

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{3, 2, 4}));
}

TEST_F(LineChainTest, ClosedRing_TakesEachLineOnce)
{
    GivenLines({{A, B}, {B, C}, {C, D}, {D, A}});

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{1, 2, 4, 3}));
}

TEST_F(LineChainTest, SameLineTwice_IsTakenOnce)
{
    GivenLines({{A, B}, {B, A}, {A, B}});

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{1, 2, 3}));
}

TEST_F(LineChainTest, Line0_IsNeverAdded)
{
    GivenLines({{A, B}});
    GivenLine(0, B, C);

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{1}));
}

TEST_F(LineChainTest, Line0_Pressed_TakesTheOthers)
{
    GivenLines({{B, C}, {C, E}});
    GivenLine(0, A, B);

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{0, 1, 2}));
}

TEST_F(LineChainTest, Line0InTheMiddle_StaysBehindWhenTheOthersMove)
{
    GivenLines({{A, B}});
    GivenLine(0, B, C);

    Drag({OnAB, {1600, 1100}});

    EXPECT_EQ(Line(0), (Rows{2000, 1000, 2000, 2000, 0}));
    EXPECT_EQ(Line(1), (Rows{1100, 1100, 2100, 1100, 0}));
}

TEST_F(LineChainTest, LineBehindTheCount_IsNotAdded)
{
    GivenLines({{A, B}, {B, C}});
    P.Map.SLines = 1;

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{1}));
}

TEST_F(LineChainTest, EndsThatAreOneTwipApart_DoNotHang)
{
    GivenLines({{A, B}, {{2001, 1000}, C}});

    Press(OnAB);

    EXPECT_EQ(Chain(), (Rows{1}));
}

TEST_F(LineChainTest, LineWithStartXOfZero_IsNeitherHitNorCarried)
{
    GivenLines({{{0, 1000}, A}, {A, B}});

    Press({500, 1000});
    EXPECT_EQ(P.Tools.LineMiss, 1);
    Release({500, 1000});
    Drag({OnAB, {1600, 1100}});

    EXPECT_EQ(Line(1), (Rows{0, 1000, 1000, 1000, 0}));
    EXPECT_EQ(Line(2), (Rows{1100, 1100, 2100, 1100, 0}));
}

TEST_F(LineChainTest, LineThatEndsInTheCorner_MakesNoLinesOfFreeRows)
{
    GivenLines({{{500, 500}, {0, 0}}, {{3000, 500}, {4000, 500}}, {{3000, 900}, {4000, 900}}});
    Choose(ToolSelection::LineDelete);
    PressAndRelease({3500, 500});
    P.Map.SLines = 3;
    Choose(ToolSelection::LineMove);

    Drag({{250, 250}, {350, 350}});

    EXPECT_EQ(Line(1), (Rows{600, 600, 100, 100, 0}));
    EXPECT_EQ(Line(2), Rows(5, 0));
}

TEST_F(LineChainTest, Miss_IsTold)
{
    GivenLines({{A, B}});

    Press({5000, 5000});

    EXPECT_EQ(P.Tools.LineMiss, 1);
    EXPECT_EQ(P.Tools.ToolStep, 0);
}

TEST_F(LineChainTest, CountOfZero_LeavesAllAsItWas)
{
    GivenLines({{A, B}});
    Press({5000, 5000});
    Release({5000, 5000});
    GivenLine(0, A, B);
    P.Map.SLines = 0;

    Press(OnAB);
    EXPECT_EQ(P.Tools.LineMiss, 1);

    P.Tools.LineMiss = 0;
    P.Map.LineChain[0] = 0;
    Press({5000, 5000});
    EXPECT_EQ(P.Tools.LineMiss, 0);
    EXPECT_EQ(P.Tools.ToolStep, -1);
}

TEST_F(LineChainTest, CountOfZero_AndTheHitBeforeIsGone_IsAMiss)
{
    GivenLines({});
    P.Map.SLines = 0;
    P.Tools.LineMiss = 0;
    P.Map.LineChain[0] = 3;

    Press({5000, 5000});
    Move({5400, 5300});
    Release({5400, 5300});

    EXPECT_EQ(P.Tools.LineMiss, 1);
    EXPECT_EQ(ListOfLines(P.Map), u"7000,9000,8000,9000,0,"_s);
}

class LongChainTest : public LineChainTest, public WithParamInterface<int>
{
};

TEST_P(LongChainTest, HoldsNoMoreThan101Lines_AndCarriesJustThose)
{
    const int lines = GetParam();
    const int carried = std::min(lines, 101);
    GivenLongChain(lines);

    Press({75, 3000});
    EXPECT_EQ(P.Tools.ChainTop, carried - 1);
    Move({175, 3200});
    Release({175, 3200});

    for (int row = 1; row <= lines; ++row) {
        const int dx = row <= carried ? 100 : 0;
        const int dy = row <= carried ? 200 : 0;
        EXPECT_EQ(Line(row), (Rows{row * 50 + dx, 3000 + dy, row * 50 + 50 + dx, 3000 + dy, 0})) << row;
    }
    EXPECT_EQ(Line(0), (Rows{7000, 9000, 8000, 9000, 0}));
}

INSTANTIATE_TEST_SUITE_P(Lengths, LongChainTest, testing::Values(99, 100, 101, 102, 160));

TEST_F(LineChainTest, LongChainDeleted_Takes101Lines_AndOneOffTheCount)
{
    GivenLongChain(150);
    Choose(ToolSelection::LineDelete);

    PressAndRelease({75, 3000});

    EXPECT_EQ(P.Map.SLines, 149);
    for (int row = 1; row <= 150; ++row)
        EXPECT_EQ(Line(row) == Rows(5, 0), row <= 101) << row;
}

TEST_F(LineChainTest, ShortChainAfterALongOne_HoldsOnlyItsOwnLines)
{
    GivenLongChain(150);
    PressAndRelease({75, 3000});
    GivenLine(160, {1000, 5000}, {2000, 5000});
    GivenLine(161, {2000, 5000}, {3000, 5000});
    P.Map.SLines = 161;

    Press({1500, 5000});

    EXPECT_EQ(Chain(), (Rows{160, 161}));
}

} // namespace
} // namespace lineforge
