#include "map/tools/LeaveTools.h"
#include "map/tools/ToolsTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// Gestures that don't end as they should: a box swallows the release, a key presses a tool, a menu opens, a second
// button goes down.
class ToolGestureTest : public ToolsTest
{
protected:
    ToolGestureTest()
    {
        BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Gender", u"Male"}})
            .Boxes(u"1000,500,0,0,,2000,500,0,A001,John,")
            .Lines(u"3000,3000,4000,3000,255,");
    }

    void MoveWithoutButton(Point at) { Picture.MouseMove(0, 0, at.X, at.Y); }
    QByteArray MapAtFirst() const
    {
        return BytesOf(u"1000,500,0,0,,2000,500,0,A001,John,", u"3000,3000,4000,3000,255,", u"0,0,0,");
    }
};

TEST_F(ToolGestureTest, MoveWithoutAButton_EndsTheDragWhereItWas)
{
    GivenTools();
    Choose(ToolSelection::BoxMove);
    Press({1300, 600});
    Move({1500, 800});

    MoveWithoutButton({5000, 5000});
    MoveWithoutButton({6000, 6000});

    EXPECT_EQ(Box(0), (RowTexts{u"1200"_s, u"700"_s, u"0"_s, u"0"_s, u""_s}));
    EXPECT_EQ(Picture.Mode, DrawMode::Copy);
    EXPECT_EQ(P.Tools.ToolStep, 0);
}

TEST_F(ToolGestureTest, TextWhoseQuestionSwallowedTheRelease_IsFinishedByTheNextMove)
{
    GivenTools();
    Choose(ToolSelection::TextDraw);
    ExpectText(u"Smith");
    Press({1000, 2000});

    MoveWithoutButton({1100, 2100});
    Choose(ToolSelection::BoxDraw);
    PressAndRelease({6000, 6000});

    EXPECT_EQ(Text(0), (RowTexts{u"1000"_s, u"1950"_s, u"Smith"_s, u"Arial"_s, u"8"_s, u"0"_s}));
    EXPECT_EQ(P.Map.STexts, 0);
    EXPECT_EQ(P.Map.SBoxes, 2);
}

// A backup that fails leaves the branch without its records.
TEST_F(ToolGestureTest, WithoutRecords_EveryPressIsTold_AndTheToolsCanBeClosed)
{
    GivenTools();
    P.Form3.Unload();
    for (const int tool : {1, 7, 8, 9, 17, 18, 19, 27, 28, 29}) {
        Choose(tool);
        Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);
        Drag({{2300, 600}, {2500, 800}});
        PutDown();
    }

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(u"1000,500,0,0,,2000,500,0,A001,John,", u"3000,3000,4000,3000,255,", u""));
    EXPECT_EQ(P.Tools.ToolMode, 0);
    EXPECT_FALSE(P.Form3->Data1.IsOpen());
}

TEST_F(ToolGestureTest, RecordsThatGoInADrag_LetItEnd)
{
    GivenTools();
    Choose(ToolSelection::BoxMove);
    Press({2300, 600});
    Move({2500, 800});
    ASSERT_EQ(P.Tools.MapCursorMode, MapCursor::MovingSubject);
    P.Form3.Unload();

    Release({2500, 800});

    EXPECT_EQ(Box(1), (RowTexts{u"2200"_s, u"700"_s, u"0"_s, u"A001"_s, u"John"_s}));
    EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Normal);
}

TEST_F(ToolGestureTest, ToolPressedByKeyInADrag_EndsItFirst)
{
    GivenTools();
    Choose(ToolSelection::BoxMove);
    Press({2300, 600});
    Move({2500, 800});

    Click(&forms::Form1::Image6);
    Move({4000, 4000});
    Release({4000, 4000});

    EXPECT_EQ(Box(1), (RowTexts{u"2200"_s, u"700"_s, u"0"_s, u"A001"_s, u"John"_s}));
    EXPECT_EQ(P.Tools.MapCursorMode, 0);
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::LineDraw);
    EXPECT_EQ(P.Map.SLines, 0);
}

TEST_F(ToolGestureTest, SecondButton_EndsTheFirstGesture_AndBeginsAnother)
{
    GivenTools();
    DialogColour = Red;
    Choose(ToolSelection::LineDraw);
    Press({1000, 4000});
    Move({2000, 4000});
    Press({2000, 5000}, 0, RightButton);
    Move({3000, 5000});
    Release({3000, 5000});
    Release({3000, 5000});

    EXPECT_EQ(Line(1), (std::vector<int>{1000, 4000, 2000, 4000, 255}));
    EXPECT_EQ(Line(2), (std::vector<int>{2000, 5000, 3000, 5000, 255}));
    EXPECT_EQ(P.Map.SLines, 2);
    EXPECT_EQ(Picture.ForeColor, Black);
}

TEST_F(ToolGestureTest, ToolsClosedInTheMiddleOfALine_KeepTheLineAsFarAsItWent)
{
    GivenTools();
    Choose(ToolSelection::LineDraw);
    Press({1000, 4000});
    Move({2000, 4000});

    ExpectSaveQuestion(Answer::Yes);
    P.Form1->mnuEdit.Click();

    EXPECT_EQ(MapBytes(),
              BytesOf(u"1000,500,0,0,,2000,500,0,A001,John,", u"3000,3000,4000,3000,255,1000,4000,2000,4000,0,", u""));
}

TEST_F(ToolGestureTest, ToolsClosedAtTheFirstPressOfALine_LeaveNothingOfIt)
{
    GivenTools();
    P.Tools.MoveX = 1000;
    P.Tools.MoveY = 4000;
    Choose(ToolSelection::LineDraw);
    Press({1000, 4000});

    ExpectSaveQuestion(Answer::Yes);
    P.Form1->mnuTreeGraphics.Click();

    EXPECT_EQ(MapBytes(), BytesOf(u"1000,500,0,0,,2000,500,0,A001,John,", u"3000,3000,4000,3000,255,", u""));
}

TEST_F(ToolGestureTest, SecondExitThatWasWaiting_AsksOnce)
{
    GivenTools();
    ExpectSaveQuestion(Answer::No);
    Machine.Loop.AtNextYield([&] { Click(&forms::Form1::Image8); });

    Click(&forms::Form1::Image8);

    EXPECT_EQ(P.Tools.ToolMode, 0);
}

// An import that fails leaves none in memory.
TEST_F(ToolGestureTest, MapGoneBehindTheTools_NothingIsAskedOrWritten)
{
    GivenTools();
    Choose(ToolSelection::BoxDraw);
    ForgetMap(P.Map, P.Mouse, P.Tools);
    const Tree before = Home.Snapshot();

    P.Form1->mnuEdit.Click();

    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::None);
    EXPECT_FALSE(P.Form1->Image8.Visible);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(ToolGestureTest, MapGoneBehindTheTools_ThePointerIsTheArrowAgain)
{
    GivenTools();
    Choose(ToolSelection::BoxDraw);
    ForgetMap(P.Map, P.Mouse, P.Tools);
    ASSERT_EQ(P.Screen.Pointer, MousePointer::Cross);

    P.Form1->mnuEdit.Click();

    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Normal);
}

TEST_F(ToolGestureTest, MapGoneBehindTheTools_ExitLeavesNoHourglass)
{
    GivenTools();
    ForgetMap(P.Map, P.Mouse, P.Tools);

    P.Form1->Image8.Click();

    EXPECT_FALSE(P.Form1->Image8.Visible);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(ToolGestureTest, MapOfNoBranch_CantBeDrawnOn)
{
    GivenMap();
    ForgetMap(P.Map, P.Mouse, P.Tools);
    Prompts.Expect(u"DataBase not Opened", u"Cannot Change Tree Map until database\nfile is Opened or begins from New",
                   Buttons::Information);

    P.Form1->mnuTreeTools.Click();

    EXPECT_EQ(P.Tools.ToolMode, 0);
}

TEST_F(ToolGestureTest, BranchChosenFromTheListWhileToolsAreOpen_AsksFirst)
{
    GivenMap();
    WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}});
    P.Form8.Unload();
    P.Form1->Open.Click();
    P.Form1->mnuTreeTools.Click();
    PlaceBox({5000, 5000});
    const QString added = u"1000,500,0,0,,2000,500,0,A001,John,4693,4892,0,0,,"_s;
    ExpectSaveQuestion(Answer::Yes);
    Prompts.Expect(u"Box Config File record corrupt", u"Config Text Record empty", Buttons::Information);
    Prompts.Expect(u"Image not Present", u"Searched Image File for A001Sub.Jpg", Buttons::Information);

    P.Form8->List1.SetText(u"Smiths"_s);
    P.Form8->Command1.Click();

    EXPECT_EQ(P.Map.sBoxesText, added);
    EXPECT_EQ(P.Tools.ToolMode, 0);
    EXPECT_FALSE(P.Form1->Image8.Visible);
}

TEST_F(ToolGestureTest, ChainOfTheMapBefore_IsForgottenWithTheTools)
{
    BranchA.Lines(u"3000,3000,4000,3000,0,1000,1000,2000,1000,0,2000,1000,2000,2000,0,");
    GivenTools();
    Choose(ToolSelection::LineDelete);
    PressAndRelease({1500, 1000});
    Leave(Answer::Yes);
    P.Form1->mnuTreeTools.Click();

    Choose(ToolSelection::LineMove);
    Drag({{3500, 3000}, {3600, 3100}});

    EXPECT_EQ(Line(0), (std::vector<int>{3100, 3100, 4100, 3100, 0}));
}

TEST_F(ToolGestureTest, SpoiltItems_CostTheirOwnDrawing_NotTheTools)
{
    BranchA.Texts(u"1000,6000,Smith, John,Arial,8,0,2000,7000,Jane,Arial,8,255,");
    GivenTools();
    Choose(ToolSelection::TextDraw);
    ExpectText(u"new");
    PressAndRelease({3000, 3000});
    Choose(ToolSelection::TextDelete);
    PressAndRelease({1100, 6050});
    Choose(ToolSelection::TextMove);
    Drag({{1100, 6050}, {1200, 6150}});
    Choose(ToolSelection::ZoneDraw);
    Drag({{100, 100}, {8000, 8000}});
    Drag({{200, 200}, {300, 300}});

    Leave(Answer::No);

    EXPECT_EQ(MapBytes(), BytesOf(u"1000,500,0,0,,2000,500,0,A001,John,", u"3000,3000,4000,3000,255,",
                                  u"1000,6000,Smith, John,Arial,8,0,2000,7000,Jane,Arial,8,255,"));
}

TEST_F(ToolGestureTest, ZoneDrag_LeavesFontAndPenAsTheyWere)
{
    BranchA.Texts(u"1000,6000,Jane,Arial,14,255,");
    GivenTools();
    Choose(ToolSelection::ZoneDraw);
    Drag({{900, 5900}, {1100, 6100}});
    Press({200, 200});
    Move({300, 300});

    EXPECT_EQ(Picture.Font, TextFont());
    EXPECT_EQ(Picture.ForeColor, Black);
}

} // namespace
} // namespace lineforge
