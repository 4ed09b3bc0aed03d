#include "map/items/MapItems.h"
#include "map/tools/ToolsTest.h"
#include "support/SqliteFile.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::WithParamInterface;

void DrawByHand(PictureBox& hand, Point corner, Colour colour = Black)
{
    hand.ForeColor = colour;
    hand.Box({corner.X, corner.Y, 615, 217});
}

void PrintByHand(PictureBox& hand, Point corner, QStringView number, QStringView forename = u"")
{
    ResetMapFont(hand);
    hand.ForeColor = Black;
    hand.PrintAt({corner.X + 100, corner.Y}, number.toString());
    hand.PrintAt({corner.X + 50, corner.Y + 100}, forename.toString());
}

class NewBoxTest : public ToolsTest
{
};

TEST_F(NewBoxTest, StandsWithItsCentreAtThePress_EmptyAndInTheDialogsColour)
{
    BranchA.Boxes(u"1000,1000,255,0,,");
    GivenTools();
    DialogColour = Blue;

    PlaceBox({4000, 3000});

    EXPECT_EQ(P.Map.SBoxes, 1);
    EXPECT_EQ(Box(1), (RowTexts{u"3693"_s, u"2892"_s, QString::number(Blue), u"0"_s, u""_s}));
    EXPECT_EQ(Box(0), (RowTexts{u"1000"_s, u"1000"_s, u"255"_s, u"0"_s, u""_s}));
}

TEST_F(NewBoxTest, IsSeenFromThePressOn)
{
    GivenTools();
    DialogColour = Blue;
    Choose(ToolSelection::BoxDraw);
    PictureByHand hand;
    DrawByHand(*hand, {3693, 2892}, Blue);

    Press({4000, 3000});
    EXPECT_TRUE(SameDrawing(Picture, *hand));
    EXPECT_EQ(P.Tools.ToolStep, -1);

    Release({4000, 3000});
    EXPECT_TRUE(SameDrawing(Picture, *hand));
    EXPECT_EQ(P.Tools.ToolStep, 0);
}

TEST_F(NewBoxTest, ADragDoesNotMoveIt)
{
    GivenTools();
    Choose(ToolSelection::BoxDraw);

    Drag({{4000, 3000}, {5000, 5000}});

    EXPECT_EQ(Box(1), (RowTexts{u"3693"_s, u"2892"_s, u"0"_s, u"0"_s, u""_s}));
    EXPECT_EQ(P.Form1->Text9.Text.value(), u"5000"_s);
}

TEST_F(NewBoxTest, OneAfterTheOther_ToolAndPenStay)
{
    GivenTools();
    DialogColour = Blue;
    Picture.ForeColor = Green;
    Choose(ToolSelection::BoxDraw);

    PressAndRelease({1000, 1000});
    PressAndRelease({2000, 1000});
    PressAndRelease({3000, 1000});

    EXPECT_EQ(P.Map.SBoxes, 3);
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::BoxDraw);
    EXPECT_EQ(Picture.ForeColor, Green);
}

TEST_F(NewBoxTest, XOfZero_IsLostAtTheSave)
{
    GivenTools();
    PlaceBox({307, 1000});
    PlaceBox({308, 2000});
    ASSERT_EQ(Box(1)[BoxColumn::X], u"0"_s);

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(u"1,1892,0,0,,", u"", u""));
}

TEST_F(NewBoxTest, BeyondTheLeftEdge_IsSaved)
{
    GivenTools();
    PlaceBox({100, 1000});

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(u"-207,892,0,0,,", u"", u""));
}

// A001 and A002 have boxes, row 2 is empty, row 3 names a record that has gone.
class BoxToolTest : public ToolsTest
{
protected:
    BoxToolTest()
    {
        BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Jane"}, {u"Gender", u"Female"}})
            .Row({{u"File", u"A003"}, {u"Forename", u"Kim"}})
            .Boxes(u"1000,500,0,A001,John,2000,500,0,A002,Jane,3000,500,255,0,,4000,500,0,A009,Gone,");
    }

    void ExpectDeletionRefused()
    {
        Prompts.Expect(u"Tree Box deletion",
                       u"You must delete or transfer the Record for this subject \nbefore deleting the subject box.",
                       Buttons::Information);
    }

    QString Current() { return Records(P.Form3).Text(u"File"); }
};

TEST_F(BoxToolTest, MoveEmptyBox_TakesItsNewPlace_AndStaysEmpty)
{
    GivenTools();
    Choose(ToolSelection::BoxMove);

    Drag({{3300, 600}, {3400, 800}, {3310, 1620}});

    EXPECT_EQ(Box(2), (RowTexts{u"3010"_s, u"1520"_s, u"255"_s, u"0"_s, u""_s}));
    EXPECT_EQ(P.Map.SBoxes, 3);
    EXPECT_EQ(P.Tools.MapCursorMode, 0);
}

TEST_F(BoxToolTest, MoveMappedBox_KeepsItsNumber_AndTheCaptionGoesWithIt)
{
    GivenTools();
    Choose(ToolSelection::BoxMove);
    PictureByHand hand;
    DrawByHand(*hand, {1200, 1500});
    PrintByHand(*hand, {1200, 1500}, u"A001", u"John");
    DrawByHand(*hand, {2000, 500});
    PrintByHand(*hand, {2000, 500}, u"A002", u"Jane");
    DrawByHand(*hand, {3000, 500}, Red);
    DrawByHand(*hand, {4000, 500});
    PrintByHand(*hand, {4000, 500}, u"A009");

    Drag({{1300, 600}, {1350, 700}, {1500, 1600}});

    EXPECT_EQ(Box(0), (RowTexts{u"1200"_s, u"1500"_s, u"0"_s, u"A001"_s, u"John"_s}));
    EXPECT_TRUE(SameDrawing(Picture, *hand));
}

TEST_F(BoxToolTest, MoveMappedBox_CaptionIsGoneWhileItTravels_AndTheModeTellsIt)
{
    GivenTools();
    Choose(ToolSelection::BoxMove);
    PictureByHand hand;
    DrawByHand(*hand, {1200, 1500});
    DrawByHand(*hand, {2000, 500});
    PrintByHand(*hand, {2000, 500}, u"A002", u"Jane");
    DrawByHand(*hand, {3000, 500}, Red);
    DrawByHand(*hand, {4000, 500});
    PrintByHand(*hand, {4000, 500}, u"A009");

    Press({1300, 600});
    EXPECT_EQ(P.Tools.MapCursorMode, 3);
    EXPECT_EQ(P.Record.sCurFile, u"A001"_s);
    Move({1350, 700});
    Move({1500, 1600});

    EXPECT_EQ(Picture.Mode, DrawMode::NotXor);
    EXPECT_TRUE(SameDrawing(Picture, *hand));
    Release({1500, 1600});
    EXPECT_EQ(P.Tools.MapCursorMode, 0);
    EXPECT_EQ(Picture.Mode, DrawMode::Copy);
}

TEST_F(BoxToolTest, MoveMappedBox_ItsRecordIsCurrentAfterwards_AndUnchanged)
{
    GivenTools();
    Records(P.Form3).MoveLast();
    Choose(ToolSelection::BoxMove);

    Drag({{2300, 600}, {2300, 1600}});

    EXPECT_EQ(Current(), u"A002"_s);
    const SqliteFile::Row jane{u"A002"_s, u"Jane"_s, u"Female"_s};
    EXPECT_EQ(SqliteFile(Home.Path(BranchA.DatabaseFile())).Query("SELECT File, Forename, Gender FROM Tree99")[1],
              jane);
}

TEST_F(BoxToolTest, MoveMappedBox_CoordinatesAreNotServed_ButOfAnEmptyOneTheyAre)
{
    GivenTools();
    Choose(ToolSelection::BoxMove);

    Drag({{1300, 600}, {1300, 1600}});
    EXPECT_EQ(P.Form1->Text9.Text.value(), QString());

    Drag({{3300, 600}, {3300, 1600}});
    EXPECT_EQ(P.Form1->Text9.Text.value(), u"3300"_s);
}

TEST_F(BoxToolTest, MoveBoxWhoseRecordHasGone_KeepsItsNumber_AndLeavesNoTrace)
{
    GivenTools();
    Choose(ToolSelection::BoxMove);
    Press({4300, 600});
    EXPECT_EQ(P.Tools.MapCursorMode, 0);
    Move({4300, 1600});
    EXPECT_EQ(CountPixels(Picture, Black, {3900, 400, 800, 400}), 0);
    Release({4300, 1600});

    EXPECT_EQ(Box(3), (RowTexts{u"4000"_s, u"1500"_s, u"0"_s, u"A009"_s, u"Gone"_s}));
    EXPECT_TRUE(IsAsPaintedAfresh());
}

TEST_F(BoxToolTest, MoveBoxOfAnotherBranch_TakesNumberAndNameAlong)
{
    BranchB.Row({{u"File", u"B007"}, {u"Forename", u"Ann"}}).Build();
    BranchA.Boxes(u"1000,500,0,A001,John,5000,500,0,B007,Ann,");
    GivenTools();
    Choose(ToolSelection::BoxMove);
    PictureByHand hand;
    DrawByHand(*hand, {1000, 500});
    PrintByHand(*hand, {1000, 500}, u"A001", u"John");
    DrawByHand(*hand, {5000, 1500});

    Press({5300, 600});
    Move({5300, 1600});
    EXPECT_TRUE(SameDrawing(Picture, *hand));
    Release({5300, 1600});

    PrintByHand(*hand, {5000, 1500}, u"B007", u"Ann");
    EXPECT_TRUE(SameDrawing(Picture, *hand));
    EXPECT_EQ(Box(1), (RowTexts{u"5000"_s, u"1500"_s, u"0"_s, u"B007"_s, u"Ann"_s}));
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
}

TEST_F(BoxToolTest, MoveInAnEmptyBranch_Works)
{
    BranchBuilder empty(Home, u'C');
    GivenOpen(empty.Boxes(u"1000,500,0,0,,2000,500,0,C001,,"));
    OpenMap();
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::BoxMove);

    Drag({{2300, 600}, {2300, 1600}});

    EXPECT_EQ(Box(1), (RowTexts{u"2000"_s, u"1500"_s, u"0"_s, u"C001"_s, u""_s}));
    EXPECT_TRUE(IsAsPaintedAfresh());
}

// A row at X 0 is free: the box is lost at the save.
TEST_F(BoxToolTest, MoveMappedBox_ToAnXOfZero_HasNoCaptionThere)
{
    BranchA.Boxes(u"1000,500,255,A001,John,2000,500,255,A002,Jane,");
    GivenTools();
    Choose(ToolSelection::BoxMove);

    Drag({{1300, 600}, {300, 600}});

    ASSERT_EQ(Box(0)[BoxColumn::X], u"0"_s);
    EXPECT_EQ(CountPixels(Picture, Black, {0, 400, 1700, 500}), 0);
    EXPECT_EQ(P.Tools.MapCursorMode, 0);
    EXPECT_EQ(Current(), u"A001"_s);
}

TEST_F(BoxToolTest, MovePressAndRelease_ChangesNothing)
{
    GivenTools();
    Choose(ToolSelection::BoxMove);
    const QImage before = Shown();

    PressAndRelease({1300, 600});

    EXPECT_EQ(Box(0), (RowTexts{u"1000"_s, u"500"_s, u"0"_s, u"A001"_s, u"John"_s}));
    EXPECT_TRUE(SameImage(Shown(), before));
}

TEST_F(BoxToolTest, Move_PenComesBack)
{
    // Captions are always printed in black and would leave that behind.
    BranchA.Boxes(u"1000,500,0,0,,3000,500,255,0,,");
    GivenTools();
    Picture.ForeColor = Green;
    Choose(ToolSelection::BoxMove);

    Drag({{3300, 600}, {3400, 800}});

    EXPECT_EQ(Box(1)[BoxColumn::X], u"3100"_s);
    EXPECT_EQ(Picture.ForeColor, Green);
}

TEST_F(BoxToolTest, BoxesThatOverlap_TheLowerRowWins)
{
    BranchA.Boxes(u"1000,500,0,0,,1100,550,0,0,,");
    GivenTools();
    Choose(ToolSelection::BoxMove);

    Drag({{1300, 600}, {1300, 1600}});

    EXPECT_EQ(Box(0)[BoxColumn::Y], u"1500"_s);
    EXPECT_EQ(Box(1)[BoxColumn::Y], u"550"_s);
}

struct Edge {
    Point Press;
    bool IsHit;
};

class BoxToolEdgeTest : public BoxToolTest, public WithParamInterface<Edge>
{
};

TEST_P(BoxToolEdgeTest, IsOutside)
{
    GivenTools();
    Choose(ToolSelection::BoxMove);

    Press(GetParam().Press);

    EXPECT_EQ(P.Mouse.BoxMiss, GetParam().IsHit ? 0 : 1);
    EXPECT_EQ(P.Tools.ToolStep, GetParam().IsHit ? -1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Edges, BoxToolEdgeTest,
                         testing::Values(Edge{{3000, 600}, false}, Edge{{3001, 600}, true}, Edge{{3614, 600}, true},
                                         Edge{{3615, 600}, false}, Edge{{3300, 500}, false}, Edge{{3300, 501}, true},
                                         Edge{{3300, 716}, true}, Edge{{3300, 717}, false}));

class BoxMissTest : public BoxToolTest, public WithParamInterface<int>
{
};

TEST_P(BoxMissTest, NoBoxUnderThePress_DoesNothingSilently_ButRepaints)
{
    GivenTools();
    const QImage before = Shown();
    Choose(GetParam());
    Picture.Cls();

    Press({5500, 5500});
    Move({1300, 600});
    EXPECT_TRUE(IsBlank(Picture));
    Release({1300, 600});

    EXPECT_TRUE(SameImage(Shown(), before));
    EXPECT_EQ(P.Map.SBoxes, 3);
    EXPECT_EQ(Box(0)[BoxColumn::X], u"1000"_s);
    EXPECT_EQ(Current(), u"A001"_s);
}

INSTANTIATE_TEST_SUITE_P(MoveAndDelete, BoxMissTest, testing::Values(18, 28));

TEST_F(BoxToolTest, DeleteEmptyBox_FreesTheRow_AndLowersTheCount)
{
    GivenTools();
    Choose(ToolSelection::BoxDelete);

    PressAndRelease({3300, 600});

    EXPECT_EQ(Box(2), (RowTexts{u"0"_s, u"0"_s, u"0"_s, u"0"_s, u""_s}));
    EXPECT_EQ(P.Map.SBoxes, 2);
    EXPECT_EQ(CountPixels(Picture, Red), 0);
    Leave(Answer::Yes);
    EXPECT_EQ(MapBytes(), BytesOf(u"1000,500,0,A001,John,2000,500,0,A002,Jane,4000,500,0,A009,Gone,", u"", u""));
}

TEST_F(BoxToolTest, DeleteBoxWithARecord_IsTold_AndChangesNothing)
{
    GivenTools();
    Choose(ToolSelection::BoxDelete);
    const QImage before = Shown();
    ExpectDeletionRefused();

    Press({2300, 600});
    EXPECT_EQ(P.Tools.ToolStep, 0);
    EXPECT_EQ(P.Mouse.BoxMiss, 1);
    Release({2300, 600});

    EXPECT_EQ(Box(1), (RowTexts{u"2000"_s, u"500"_s, u"0"_s, u"A002"_s, u"Jane"_s}));
    EXPECT_EQ(P.Map.SBoxes, 3);
    EXPECT_TRUE(SameImage(Shown(), before));
}

TEST_F(BoxToolTest, DeleteBoxWhoseRecordHasGone_Works_AndTheForenameStays)
{
    GivenTools();
    Choose(ToolSelection::BoxDelete);

    PressAndRelease({4300, 600});

    EXPECT_EQ(Box(3), (RowTexts{u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"Gone"_s}));
    EXPECT_EQ(P.Map.SBoxes, 2);
    EXPECT_EQ(CountPixels(Picture, Black, {3900, 400, 900, 500}), 0);
}

TEST_F(BoxToolTest, DeleteBoxOfAnotherBranch_Works)
{
    BranchB.Row({{u"File", u"B007"}, {u"Forename", u"Ann"}}).Build();
    BranchA.Boxes(u"1000,500,0,A001,John,5000,500,0,B007,Ann,");
    GivenTools();
    Choose(ToolSelection::BoxDelete);

    PressAndRelease({5300, 600});

    EXPECT_EQ(Box(1), (RowTexts{u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"Ann"_s}));
    EXPECT_EQ(CountPixels(Picture, Black, {4900, 400, 900, 500}), 0);
}

TEST_F(BoxToolTest, DeleteInAnEmptyBranch_Works)
{
    BranchBuilder empty(Home, u'C');
    GivenOpen(empty.Boxes(u"1000,500,0,0,,2000,500,0,C001,,"));
    OpenMap();
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::BoxDelete);

    PressAndRelease({2300, 600});

    EXPECT_EQ(Box(1), (RowTexts{u"0"_s, u"0"_s, u"0"_s, u"0"_s, u""_s}));
}

TEST_F(BoxToolTest, Delete_HighestSurvivingBox_IsNotHitUntilTheToolsClose)
{
    GivenTools();
    Choose(ToolSelection::BoxDelete);
    PressAndRelease({3300, 600});

    Choose(ToolSelection::BoxMove);
    Drag({{4300, 600}, {4300, 1600}});
    EXPECT_EQ(P.Mouse.BoxMiss, 1);
    EXPECT_EQ(Box(3), (RowTexts{u"4000"_s, u"500"_s, u"0"_s, u"A009"_s, u"Gone"_s}));

    Leave(Answer::Yes);
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::BoxMove);
    Drag({{4300, 600}, {4300, 1600}});
    EXPECT_EQ(Box(2), (RowTexts{u"4000"_s, u"1500"_s, u"0"_s, u"A009"_s, u"Gone"_s}));
}

TEST_F(BoxToolTest, DeleteClickedAgain_WhenOneBoxIsLeft_DeletesNothingMore)
{
    BranchA.Boxes(u"1000,500,0,0,,3000,500,255,0,,");
    GivenTools();
    Choose(ToolSelection::BoxDelete);
    PressAndRelease({1300, 600});
    ASSERT_EQ(P.Map.SBoxes, 0);

    PressAndRelease({1300, 600});
    PressAndRelease({3300, 600});

    EXPECT_EQ(P.Mouse.BoxMiss, 1);
    EXPECT_EQ(P.Map.SBoxes, 0);
    EXPECT_EQ(Box(1), (RowTexts{u"3000"_s, u"500"_s, u"255"_s, u"0"_s, u""_s}));
}

TEST_F(BoxToolTest, DoubleClick_OpensNoRecord)
{
    GivenTools();
    P.Form1->Frame1.Caption = u"before"_s;

    Press({1300, 600});
    Release({1300, 600});
    Picture.DblClick();
    Release({1300, 600});

    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"before"_s);
}

} // namespace
} // namespace lineforge
