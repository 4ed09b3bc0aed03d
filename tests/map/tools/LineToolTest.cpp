#include "map/tools/ToolsTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::WithParamInterface;
using LineValues = std::vector<int>;

const LineValues freeRow{0, 0, 0, 0, 0};

class LineToolTest : public ToolsTest
{
protected:
    // A map of three lines apart from each other, in the rows 0 to 2.
    void GivenThreeLines()
    {
        BranchA.Lines(u"1000,1000,2000,1000,255,1000,2000,2000,2000,255,1000,3000,2000,3000,255,");
        GivenTools();
    }
};

TEST_F(LineToolTest, Draw_StoresBothEndsAndTheDialogsColour_InTheRowAfterTheCount)
{
    BranchA.Lines(u"1000,1000,2000,1000,255,");
    GivenTools();
    DialogColour = Blue;

    DrawNewLine({3000, 1000}, {4000, 1600});

    EXPECT_EQ(P.Map.SLines, 1);
    EXPECT_EQ(Line(1), (LineValues{3000, 1000, 4000, 1600, Blue}));
    EXPECT_EQ(Line(0), (LineValues{1000, 1000, 2000, 1000, 255}));
}

TEST_F(LineToolTest, Draw_NothingButTheLineIsSeen_ThenAndAfterwards)
{
    GivenTools();
    DialogColour = Blue;
    Choose(ToolSelection::LineDraw);
    PictureByHand hand;
    hand->ForeColor = Blue;
    hand->Line({3000, 1000}, {4000, 1600});

    Press({3000, 1000});
    Move({3400, 900});
    Move({4000, 1600});
    EXPECT_TRUE(SameDrawing(Picture, *hand));

    Release({4000, 1600});
    EXPECT_TRUE(SameDrawing(Picture, *hand));
    EXPECT_EQ(Picture.Mode, DrawMode::Copy);
}

TEST_F(LineToolTest, Draw_PenComesBack_AndTheStepIsOver)
{
    GivenTools();
    DialogColour = Blue;
    Picture.ForeColor = Green;
    Choose(ToolSelection::LineDraw);

    Press({3000, 1000});
    EXPECT_EQ(P.Tools.ToolStep, -1);
    Move({4000, 1600});
    Release({4000, 1600});

    EXPECT_EQ(P.Tools.ToolStep, 0);
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::LineDraw);
    EXPECT_EQ(Picture.ForeColor, Green);
}

TEST_F(LineToolTest, Draw_ColourIsReadAtEachStep)
{
    GivenTools();
    Choose(ToolSelection::LineDraw);
    Press({3000, 1000});
    Move({3500, 1000});
    DialogColour = Red;
    Move({4000, 1000});
    Release({4000, 1000});

    EXPECT_EQ(Line(1)[LineColumn::Colour], static_cast<int>(Red));
}

TEST_F(LineToolTest, Draw_FirstStepPaintsABackgroundLineToTheCorner_WhichTheReleaseMends)
{
    BranchA.Boxes(u"1000,1000,255,0,,");
    GivenTools();
    const Point onBox{1100, 1000};
    ASSERT_EQ(ColourAt(Picture, onBox), Red);
    const Point press{4400, 4000};
    Choose(ToolSelection::LineDraw);

    Press(press);
    Move({5000, 4000});
    EXPECT_EQ(ColourAt(Picture, onBox), White);

    Release({5000, 4000});
    EXPECT_EQ(ColourAt(Picture, onBox), Red);
}

TEST_F(LineToolTest, Draw_AnyMouseButton)
{
    GivenTools();
    Choose(ToolSelection::LineDraw);
    for (const int button : {RightButton, MiddleButton}) {
        Picture.MouseDown(button, 0, 1000, 1000);
        Picture.MouseMove(button, 0, 2000, 1000);
        Picture.MouseUp(button, 0, 2000, 1000);
    }

    EXPECT_EQ(P.Map.SLines, 2);
}

TEST_F(LineToolTest, Draw_FractionsAreDropped)
{
    GivenTools();
    Choose(ToolSelection::LineDraw);
    Picture.MouseDown(LeftButton, 0, 1000.9, 1100.9);
    Picture.MouseMove(LeftButton, 0, 2000.9, 1200.9);
    Picture.MouseUp(LeftButton, 0, 2000.9, 1200.9);

    EXPECT_EQ(Line(1), (LineValues{1000, 1100, 2000, 1200, 0}));
}

TEST_F(LineToolTest, Draw_ServesTheCoordinates)
{
    GivenTools();
    DrawNewLine({3000, 1000}, {4000, 1600});

    EXPECT_EQ(P.Form1->Text9.Text.value(), u"4000"_s);
    EXPECT_EQ(P.Form1->Text10.Text.value(), u"1600"_s);
    EXPECT_EQ(P.Form1->Text8.Text.value(), u"3693,1492"_s);
}

struct Reach {
    int Across;
    int Down;
    bool IsKept;
};

class ShortestLineTest : public LineToolTest, public WithParamInterface<Reach>
{
};

TEST_P(ShortestLineTest, IsKeptFrom100AcrossOr50Down)
{
    GivenTools();
    const Point to{3000 + GetParam().Across, 3000 + GetParam().Down};

    DrawNewLine({3000, 3000}, to);

    EXPECT_EQ(P.Map.SLines, GetParam().IsKept ? 1 : 0);
    EXPECT_EQ(Line(1), (GetParam().IsKept ? LineValues{3000, 3000, to.X, to.Y, 0} : freeRow));
    EXPECT_EQ(IsBlank(Picture), !GetParam().IsKept);
    EXPECT_EQ(P.Tools.ToolStep, 0);
}

INSTANTIATE_TEST_SUITE_P(Reaches, ShortestLineTest,
                         testing::Values(Reach{99, 49, false}, Reach{100, 0, true}, Reach{0, 50, true},
                                         Reach{100, 49, true}, Reach{99, 50, true}, Reach{-99, -49, false},
                                         Reach{-100, 0, true}, Reach{0, -50, true}, Reach{-99, 49, false},
                                         Reach{0, 0, false}));

TEST_F(LineToolTest, Refused_GivesBackCountSlotAndPen_AndDoesNotRepaint)
{
    BranchA.Boxes(u"1000,1000,255,0,,");
    GivenTools();
    DialogColour = Blue;
    Picture.ForeColor = Green;
    Picture.Cls();

    DrawNewLine({3000, 3000}, {3050, 3000});

    EXPECT_EQ(P.Map.SLines, 0);
    EXPECT_EQ(Line(1), freeRow);
    EXPECT_EQ(Picture.ForeColor, Green);
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(LineToolTest, Refused_NothingOfItIsSaved)
{
    BranchA.Lines(u"1000,1000,2000,1000,255,");
    GivenTools();
    DrawNewLine({3000, 3000}, {3050, 3000});

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(u"", u"1000,1000,2000,1000,255,", u""));
}

TEST_F(LineToolTest, PressAndReleaseWithoutAMove_NearTheLastGesture_IsRefused)
{
    GivenTools();
    DrawNewLine({3000, 3000}, {4000, 3000});

    PressAndRelease({4050, 3020});

    EXPECT_EQ(P.Map.SLines, 1);
    EXPECT_EQ(Line(2), freeRow);
}

TEST_F(LineToolTest, PressAndReleaseWithoutAMove_FarFromTheLastGesture_KeepsALineToThere)
{
    GivenTools();
    DialogColour = Blue;
    DrawNewLine({3000, 3000}, {4000, 3000});

    PressAndRelease({5000, 5000});

    EXPECT_EQ(P.Map.SLines, 2);
    const LineValues line = Line(2);
    EXPECT_EQ(LineValues(line.begin(), line.begin() + 4), (LineValues{5000, 5000, 4000, 3000}));
}

struct Squaring {
    Point To;
    Point End;
};

class SquaredLineTest : public LineToolTest, public WithParamInterface<Squaring>
{
};

TEST_P(SquaredLineTest, ShiftMakesItLevelOrUpright)
{
    GivenTools();
    Choose(ToolSelection::LineDraw);

    Drag({{3000, 3000}, GetParam().To}, Shift);

    EXPECT_EQ(Line(1), (LineValues{3000, 3000, GetParam().End.X, GetParam().End.Y, 0}));
}

INSTANTIATE_TEST_SUITE_P(Ways, SquaredLineTest,
                         testing::Values(Squaring{{4000, 3300}, {4000, 3000}}, Squaring{{3300, 4000}, {3000, 4000}},
                                         Squaring{{2000, 3300}, {2000, 3000}}, Squaring{{3300, 2000}, {3000, 2000}},
                                         Squaring{{4000, 4000}, {4000, 4000}}, Squaring{{2000, 4000}, {2000, 4000}},
                                         Squaring{{4001, 4000}, {4001, 3000}}));

TEST_F(LineToolTest, ShiftLetGoBeforeTheRelease_LeavesTheLineSquared)
{
    GivenTools();
    Choose(ToolSelection::LineDraw);
    Press({3000, 3000});
    Move({4000, 3300}, Shift);
    Release({4000, 3300});

    EXPECT_EQ(Line(1), (LineValues{3000, 3000, 4000, 3000, 0}));
}

TEST_F(LineToolTest, CtrlAtThePress_GoesOnFromTheEndOfTheLastLine)
{
    GivenTools();
    DrawNewLine({3000, 3000}, {4000, 3000});

    Drag({{6000, 6000}, {4500, 3500}}, Ctrl);

    EXPECT_EQ(Line(2), (LineValues{4000, 3000, 4500, 3500, 0}));
    EXPECT_EQ(P.Mouse.DownX, 4000);
    EXPECT_EQ(P.Mouse.DownY, 3000);
}

TEST_F(LineToolTest, CtrlAndShift_SquareFromTheEndOfTheLastLine)
{
    GivenTools();
    DrawNewLine({3000, 3000}, {4000, 3000});

    Drag({{6000, 6000}, {4100, 3500}}, Ctrl + Shift);

    EXPECT_EQ(Line(2), (LineValues{4000, 3000, 4000, 3500, 0}));
}

TEST_F(LineToolTest, CtrlWithNoEarlierLine_BeginsInTheCorner_AndIsLostAtTheSave)
{
    GivenTools();
    Choose(ToolSelection::LineDraw);

    Drag({{6000, 6000}, {4500, 3500}}, Ctrl);

    EXPECT_EQ(Line(1), (LineValues{0, 0, 4500, 3500, 0}));
    Leave(Answer::Yes);
    EXPECT_EQ(MapBytes(), BytesOf(u"", u"", u""));
    EXPECT_EQ(Line(1), freeRow);
}

TEST_F(LineToolTest, Move_CarriesBothEnds_AndKeepsTheColour)
{
    GivenThreeLines();
    Choose(ToolSelection::LineMove);

    Drag({{1500, 2010}, {1700, 2200}, {2500, 2510}});

    EXPECT_EQ(Line(1), (LineValues{2000, 2500, 3000, 2500, 255}));
    EXPECT_EQ(Line(0), (LineValues{1000, 1000, 2000, 1000, 255}));
    EXPECT_EQ(Line(2), (LineValues{1000, 3000, 2000, 3000, 255}));
    EXPECT_EQ(P.Map.SLines, 2);
}

TEST_F(LineToolTest, Move_OnlyTheLinesAtTheirPlacesAreSeen)
{
    GivenThreeLines();
    Choose(ToolSelection::LineMove);
    PictureByHand hand;
    hand->ForeColor = Red;
    hand->Line({1000, 1000}, {2000, 1000});
    hand->Line({2000, 2500}, {3000, 2500});
    hand->Line({1000, 3000}, {2000, 3000});

    Press({1500, 2010});
    Move({1700, 2200});
    EXPECT_EQ(Picture.Mode, DrawMode::NotXor);
    Move({2500, 2510});
    Release({2500, 2510});

    EXPECT_TRUE(SameDrawing(Picture, *hand));
    EXPECT_EQ(Picture.Mode, DrawMode::Copy);
}

TEST_F(LineToolTest, Move_PenComesBack)
{
    GivenThreeLines();
    Picture.ForeColor = Green;
    Choose(ToolSelection::LineMove);

    Drag({{1500, 2010}, {1700, 2200}});

    EXPECT_EQ(Picture.ForeColor, Green);
    EXPECT_EQ(P.Tools.ToolStep, 0);
}

TEST_F(LineToolTest, Move_PressAndRelease_ChangesNothing)
{
    GivenThreeLines();
    Choose(ToolSelection::LineMove);
    const QImage before = Shown();

    PressAndRelease({1500, 2010});

    EXPECT_EQ(Line(1), (LineValues{1000, 2000, 2000, 2000, 255}));
    EXPECT_TRUE(SameImage(Shown(), before));
}

class LineMissTest : public LineToolTest, public WithParamInterface<int>
{
};

TEST_P(LineMissTest, NoLineUnderThePress_DoesNothingSilently_ButRepaints)
{
    GivenThreeLines();
    const QImage before = Shown();
    Choose(GetParam());
    Picture.Cls();

    Press({5000, 5000});
    EXPECT_EQ(P.Tools.LineMiss, 1);
    EXPECT_EQ(P.Tools.ToolStep, 0);
    Move({1500, 1000});
    EXPECT_TRUE(IsBlank(Picture));
    Release({1500, 1000});

    EXPECT_TRUE(SameImage(Shown(), before));
    EXPECT_EQ(Line(0), (LineValues{1000, 1000, 2000, 1000, 255}));
    EXPECT_EQ(P.Map.SLines, 2);
}

INSTANTIATE_TEST_SUITE_P(MoveAndDelete, LineMissTest, testing::Values(17, 27));

TEST_F(LineToolTest, Delete_FreesTheRow_AndLowersTheCountByOne)
{
    GivenThreeLines();
    Choose(ToolSelection::LineDelete);

    PressAndRelease({1500, 2010});

    EXPECT_EQ(Line(1), freeRow);
    EXPECT_EQ(Line(2), (LineValues{1000, 3000, 2000, 3000, 255}));
    EXPECT_EQ(P.Map.SLines, 1);
    EXPECT_EQ(CountPixels(Picture, Red, {900, 1900, 1200, 200}), 0);
}

TEST_F(LineToolTest, Delete_OnThePress_NothingIsGoneYet)
{
    GivenThreeLines();
    Choose(ToolSelection::LineDelete);

    Press({1500, 2010});

    EXPECT_EQ(Line(1), (LineValues{1000, 2000, 2000, 2000, 255}));
    EXPECT_EQ(P.Tools.ToolStep, -1);
}

TEST_F(LineToolTest, Delete_HighestSurvivingLine_IsNotHitUntilTheToolsClose)
{
    GivenThreeLines();
    Choose(ToolSelection::LineDelete);
    PressAndRelease({1500, 1000});

    Choose(ToolSelection::LineMove);
    Drag({{1500, 3000}, {1500, 4000}});
    EXPECT_EQ(P.Tools.LineMiss, 1);
    EXPECT_EQ(Line(2), (LineValues{1000, 3000, 2000, 3000, 255}));

    Leave(Answer::Yes);
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::LineMove);
    Drag({{1500, 3000}, {1500, 4000}});
    EXPECT_EQ(Line(1), (LineValues{1000, 4000, 2000, 4000, 255}));
}

TEST_F(LineToolTest, DeleteClickedAgain_WhenOneLineIsLeft_DeletesNothingMore)
{
    BranchA.Lines(u"1000,1000,2000,1000,255,1000,2000,2000,2000,255,");
    GivenTools();
    Choose(ToolSelection::LineDelete);
    PressAndRelease({1500, 1000});
    ASSERT_EQ(P.Map.SLines, 0);

    PressAndRelease({1500, 1000});
    PressAndRelease({1500, 2000});

    EXPECT_EQ(P.Tools.LineMiss, 1);
    EXPECT_EQ(P.Map.SLines, 0);
    EXPECT_EQ(Line(1), (LineValues{1000, 2000, 2000, 2000, 255}));
}

TEST_F(LineToolTest, Delete_ChainOfThree_RemovesAllThree_AndLowersTheCountByOne)
{
    BranchA.Lines(u"6000,6000,7000,6000,255,1000,1000,2000,1000,255,2000,1000,2000,2000,255,2000,2000,3000,2000,255,");
    GivenTools();
    Choose(ToolSelection::LineDelete);

    PressAndRelease({1500, 1000});

    for (const int row : {1, 2, 3})
        EXPECT_EQ(Line(row), freeRow);
    EXPECT_EQ(P.Map.SLines, 2);
    Leave(Answer::Yes);
    EXPECT_EQ(MapBytes(), BytesOf(u"", u"6000,6000,7000,6000,255,", u""));
}

TEST_F(LineToolTest, ReleaseWithoutAPress_ServesTheCoordinatesOnly)
{
    GivenTools();
    DrawNewLine({3000, 3000}, {4000, 3000});
    const QImage before = Shown();

    Release({5500, 5600});

    EXPECT_EQ(P.Form1->Text9.Text.value(), u"5500"_s);
    EXPECT_EQ(P.Map.SLines, 1);
    EXPECT_TRUE(SameImage(Shown(), before));
}

TEST_F(LineToolTest, DoubleClick_IsOnePressAndTwoReleases)
{
    GivenTools();
    DrawNewLine({3000, 3000}, {4000, 3000});

    Press({6000, 6000});
    Release({6000, 6000});
    Picture.DblClick();
    Release({6000, 6000});

    EXPECT_EQ(P.Map.SLines, 2);
    EXPECT_EQ(P.Tools.ToolMode, 3);
}

} // namespace
} // namespace lineforge
