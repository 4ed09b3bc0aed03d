#include "map/items/HitBox.h"

#include "map/MapTest.h"

namespace lineforge
{
namespace
{
using testing::Values;
using testing::WithParamInterface;

constexpr Point corner{1000, 500};

class HitTestTest : public MapTest
{
protected:
    void GivenPress(Point at)
    {
        P.Mouse.DownX = at.X;
        P.Mouse.DownY = at.Y;
    }
};

struct PressedPoint {
    Point At;
    bool IsInside;
};

void PrintTo(const PressedPoint& point, std::ostream* out)
{
    *out << point.At.X << ", " << point.At.Y;
}

class BoxEdgeTest : public HitTestTest, public WithParamInterface<PressedPoint>
{
};

TEST_P(BoxEdgeTest, EdgesAreOutside)
{
    GivenBox(0, corner);
    GivenPress(GetParam().At);

    EXPECT_EQ(PressIsInBox(P.Map, P.Mouse, 0), GetParam().IsInside);
}

INSTANTIATE_TEST_SUITE_P(Points, BoxEdgeTest,
                         Values(PressedPoint{{1000, 600}, false}, PressedPoint{{1001, 600}, true},
                                PressedPoint{{1614, 600}, true}, PressedPoint{{1615, 600}, false},
                                PressedPoint{{1300, 500}, false}, PressedPoint{{1300, 501}, true},
                                PressedPoint{{1300, 716}, true}, PressedPoint{{1300, 717}, false}));

TEST_F(HitTestTest, FreeRow_AndOneAtNoPlace_AreNeverHit)
{
    GivenPress({100, 100});
    EXPECT_FALSE(PressIsInBox(P.Map, P.Mouse, 0));

    GivenBox(0, {1, 1});
    P.Map.BoxArr[0][BoxColumn::Y] = QStringLiteral("Ann");
    EXPECT_FALSE(PressIsInBox(P.Map, P.Mouse, 0));
}

TEST_F(HitTestTest, RowWithXOfZero_IsNeverHit_WhateverElseItHolds)
{
    GivenBox(0, {0, 500}, u"A001");
    GivenPress({300, 600});
    EXPECT_FALSE(PressIsInBox(P.Map, P.Mouse, 0));

    GivenBox(0, {1, 500}, u"A001");
    EXPECT_TRUE(PressIsInBox(P.Map, P.Mouse, 0));
}

TEST_F(HitTestTest, Hit_GivesTheRow)
{
    GivenBox(0, {4000, 4000});
    GivenBox(1, corner);
    P.Map.SBoxes = 2;
    P.Mouse.BoxMiss = 1;
    GivenPress({1300, 600});

    HitBox(P.Map, P.Mouse);

    EXPECT_EQ(P.Mouse.BoxIdx, 1);
    EXPECT_EQ(P.Mouse.BoxMiss, 0);
}

TEST_F(HitTestTest, OverlappingBoxes_TheLowerRowWins)
{
    GivenBox(2, corner);
    GivenBox(1, {corner.X + 100, corner.Y + 50});
    P.Map.SBoxes = 2;
    GivenPress({1300, 600});

    HitBox(P.Map, P.Mouse);

    EXPECT_EQ(P.Mouse.BoxIdx, 1);
}

TEST_F(HitTestTest, Miss_GivesTheRowBehindTheLast)
{
    GivenBox(0, corner);
    GivenBox(1, {4000, 4000});
    P.Map.SBoxes = 1;
    GivenPress({3000, 3000});

    HitBox(P.Map, P.Mouse);

    EXPECT_EQ(P.Mouse.BoxIdx, 2);
    EXPECT_EQ(P.Mouse.BoxMiss, 1);
}

TEST_F(HitTestTest, RowBehindTheHighestInUse_IsNotLookedAt)
{
    GivenBox(2, corner);
    P.Map.SBoxes = 1;
    GivenPress({1300, 600});

    HitBox(P.Map, P.Mouse);

    EXPECT_EQ(P.Mouse.BoxIdx, 2);
    EXPECT_EQ(P.Mouse.BoxMiss, 1);
}

TEST_F(HitTestTest, NoBoxesCounted_BothStayAsTheyWere)
{
    GivenBox(0, corner);
    P.Map.SBoxes = 0;
    P.Mouse.BoxIdx = 7;
    P.Mouse.BoxMiss = 1;
    GivenPress({1300, 600});

    HitBox(P.Map, P.Mouse);

    EXPECT_EQ(P.Mouse.BoxIdx, 7);
    EXPECT_EQ(P.Mouse.BoxMiss, 1);
}

TEST_F(HitTestTest, RowsFrom100On_AreHit)
{
    GivenBox(LastMapRow, corner);
    P.Map.SBoxes = LastMapRow;
    GivenPress({1300, 600});

    HitBox(P.Map, P.Mouse);

    EXPECT_EQ(P.Mouse.BoxIdx, LastMapRow);
    EXPECT_EQ(P.Mouse.BoxMiss, 0);
}

} // namespace
} // namespace lineforge
