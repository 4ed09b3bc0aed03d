#include "map/subjects/EnterBranch.h"
#include "map/tools/ToolsTest.h"
#include "shell/run/RunHandler.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

const QString boxes = u"1000,500,0,A001,John,2000,500,0,A002,Jane,3000,500,0,0,,"_s;
const QString lines = u"1000,2000,2000,2000,255,"_s;
const QString texts = u"1000,3000,One,Arial,8,0,"_s;

// A map with something of each kind; A001 is the current record when the tools open.
class LeaveToolsTest : public ToolsTest
{
protected:
    LeaveToolsTest()
    {
        BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Jane"}, {u"Gender", u"Female"}})
            .Row({{u"File", u"A003"}, {u"Forename", u"Kim"}})
            .Boxes(boxes)
            .Lines(lines)
            .Texts(texts);
        GivenTools();
    }

    // One new item of each kind, and the empty box moved.
    void Edit()
    {
        PlaceBox({5000, 5000});
        DrawNewLine({1000, 6000}, {2000, 6000});
        PlaceText({1000, 7050}, u"Two");
        Choose(ToolSelection::BoxMove);
        Drag({{3300, 600}, {3400, 700}});
    }

    QString Current() { return Records(P.Form3).Text(u"File"); }

    void ExpectMapAsItWas()
    {
        EXPECT_EQ(Box(2), (RowTexts{u"3000"_s, u"500"_s, u"0"_s, u"0"_s, u""_s}));
        EXPECT_EQ(Box(3), RowTexts(5, QString()));
        EXPECT_EQ(Line(0), (std::vector<int>{1000, 2000, 2000, 2000, 255}));
        EXPECT_EQ(Line(1), std::vector<int>(5, 0));
        EXPECT_EQ(Text(0)[TextColumn::Text], u"One"_s);
        EXPECT_EQ(Text(1), RowTexts(6, QString()));
        EXPECT_EQ(P.Map.SBoxes, 2);
        EXPECT_EQ(P.Map.SLines, 0);
        EXPECT_EQ(P.Map.STexts, 0);
    }
};

TEST_F(LeaveToolsTest, Yes_WritesAllThreeLists)
{
    Edit();

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(),
              BytesOf(u"1000,500,0,A001,John,2000,500,0,A002,Jane,3100,600,0,0,,4693,4892,0,0,,",
                      QString(lines + u"1000,6000,2000,6000,0,"), QString(texts + u"1000,7000,Two,Arial,8,0,")));
    EXPECT_EQ(P.Map.SBoxes, 3);
    EXPECT_EQ(P.Map.SLines, 1);
    EXPECT_EQ(P.Map.STexts, 1);
}

TEST_F(LeaveToolsTest, Yes_TheOldMapBecomesThePreviousGeneration)
{
    const QByteArray before = MapBytes();
    Edit();

    Leave(Answer::Yes);

    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.~cf"), before);
}

TEST_F(LeaveToolsTest, No_RestoresTheMap_AndTouchesNoFile)
{
    const QImage before = Shown();
    const Tree disk = Home.Snapshot();
    Edit();

    Leave(Answer::No);

    ExpectMapAsItWas();
    EXPECT_TRUE(SameImage(Shown(), before));
    EXPECT_EQ(Differences(disk, Home.Snapshot()), QStringList());
}

TEST_F(LeaveToolsTest, No_RestoresWhatWasDeleted)
{
    const QImage before = Shown();
    Choose(ToolSelection::LineDelete);
    PressAndRelease({1500, 2000});
    Choose(ToolSelection::BoxDelete);
    PressAndRelease({3300, 600});
    Choose(ToolSelection::TextDelete);
    PressAndRelease({1100, 3050});

    Leave(Answer::No);

    ExpectMapAsItWas();
    EXPECT_TRUE(SameImage(Shown(), before));
}

TEST_F(LeaveToolsTest, No_AfterAnEarlierYes_RestoresWhatWasSavedThen)
{
    PlaceBox({5000, 5000});
    Leave(Answer::Yes);
    const QByteArray saved = MapBytes();
    P.Form1->mnuTreeTools.Click();
    PlaceBox({5000, 7000});

    Leave(Answer::No);

    EXPECT_EQ(P.Map.SBoxes, 3);
    EXPECT_EQ(Box(3), (RowTexts{u"4693"_s, u"4892"_s, u"0"_s, u"0"_s, u""_s}));
    EXPECT_EQ(Box(4), RowTexts(5, QString()));
    EXPECT_EQ(MapBytes(), saved);
}

TEST_F(LeaveToolsTest, Yes_WithoutAChange_WritesTheSameMap)
{
    const QByteArray before = MapBytes();

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), before);
    ExpectMapAsItWas();
}

TEST_F(LeaveToolsTest, WhileTheQuestionIsOpen_TheImagesAreHidden_AndThePenIsBlack)
{
    Picture.ForeColor = Red;
    ExpectSaveQuestion(Answer::No, [&] {
        for (const forms::Form1::ToolImage& tool : forms::Form1::Tools)
            EXPECT_FALSE(((*P.Form1).*tool.Button).Visible);
        EXPECT_EQ(Picture.ForeColor, Black);
        EXPECT_EQ(P.Tools.ToolMode, 3);
    });

    Click(&forms::Form1::Image8);
}

class LeaveToolsAnswerTest : public LeaveToolsTest, public testing::WithParamInterface<Answer>
{
};

TEST_P(LeaveToolsAnswerTest, AllToolsAreDown_AndThePointerIsBack)
{
    Choose(ToolSelection::LineMove);
    PressAndRelease({1500, 2000});
    Picture.Font = {u"Courier"_s, 20, true};
    P.Tools.MapCursorMode = 2;

    Leave(GetParam());

    EXPECT_EQ(P.Tools.ToolMode, 0);
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::None);
    EXPECT_EQ(P.Tools.ToolStep, 0);
    EXPECT_EQ(P.Tools.MapCursorMode, 0);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(Picture.Font, TextFont());
    EXPECT_EQ(Picture.Mode, DrawMode::Copy);
    for (int entry = 0; entry <= 100; ++entry)
        EXPECT_EQ(P.Map.LineChain[entry], 0);
    for (const forms::Form1::ToolImage& tool : forms::Form1::Tools)
        EXPECT_FALSE(((*P.Form1).*tool.Button).Visible);
}

TEST_P(LeaveToolsAnswerTest, TheRecordOfTheOpeningIsCurrentAgain_WithItsMarker)
{
    Records(P.Form3).MoveFirst();
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::BoxMove);
    Drag({{2300, 600}, {2400, 1600}});
    ASSERT_EQ(Current(), u"A002"_s);
    P.Gallery.FirstShow = 0;

    Leave(GetParam());

    EXPECT_EQ(Current(), u"A001"_s);
    const Shape& marker = P.Form1->Shape1;
    EXPECT_TRUE(marker.Visible);
    EXPECT_EQ(marker.Left, 1000 + 307 - 60);
    EXPECT_EQ(marker.Top, 500 + 108 - 60);
    EXPECT_EQ(marker.BorderColor, Rgb(0, 0, 255));
    EXPECT_EQ(P.Gallery.FirstShow, 1);
}

TEST_P(LeaveToolsAnswerTest, TheMarkerFollowsItsBox)
{
    Choose(ToolSelection::BoxMove);
    Drag({{1300, 600}, {1400, 1600}});

    Leave(GetParam());

    const bool isMoved = GetParam() == Answer::Yes;
    EXPECT_EQ(P.Form1->Shape1.Left, (isMoved ? 1100 : 1000) + 247);
    EXPECT_EQ(P.Form1->Shape1.Top, (isMoved ? 1500 : 500) + 48);
}

TEST_P(LeaveToolsAnswerTest, RecordWithoutABox_ShowsTheMarkerWhereItStood)
{
    Records(P.Form3).MoveLast();
    P.Form1->mnuTreeTools.Click();
    P.Form1->Shape1.Move({77, 88});

    Leave(GetParam());

    EXPECT_EQ(Current(), u"A003"_s);
    EXPECT_TRUE(P.Form1->Shape1.Visible);
    EXPECT_EQ(P.Form1->Shape1.Left, 77);
}

INSTANTIATE_TEST_SUITE_P(Answers, LeaveToolsAnswerTest, testing::Values(Answer::Yes, Answer::No));

TEST_F(LeaveToolsTest, Yes_RaisesTheImages)
{
    Choose(ToolSelection::BoxDelete);
    Leave(Answer::Yes);

    for (const forms::Form1::ToolImage& tool : forms::Form1::Tools)
        EXPECT_TRUE(IsRaised(tool.Button));
}

TEST_F(ToolsTest, Leave_EmptyBranch_ShowsNoMarker)
{
    GivenTools();
    PlaceBox({5000, 5000});

    Leave(Answer::Yes);

    EXPECT_FALSE(P.Form1->Shape1.Visible);
    EXPECT_EQ(P.Tools.MapCursorMode, 0);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(MapBytes(), BytesOf(u"4693,4892,0,0,,", u"", u""));
}

TEST_F(LeaveToolsTest, LineAndTextWhoseXIsZero_AreLost)
{
    DrawNewLine({0, 6000}, {2000, 6000});
    DrawNewLine({-1, 7000}, {2000, 7000});
    PlaceText({0, 7050}, u"Two");

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(boxes, QString(lines + u"-1,7000,2000,7000,0,"), texts));
}

TEST_F(LeaveToolsTest, BoxDroppedOnXZero_IsLost)
{
    Choose(ToolSelection::BoxMove);
    Drag({{3300, 600}, {300, 600}});
    ASSERT_EQ(Box(2)[BoxColumn::X], u"0"_s);

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(u"1000,500,0,A001,John,2000,500,0,A002,Jane,", lines, texts));
}

TEST_F(LeaveToolsTest, BoxesBeyondRow99_AreLost)
{
    QString hundred;
    for (int row = 0; row < 100; ++row)
        hundred += u"%1,%2,0,0,,"_s.arg(10 + row % 10 * 700).arg(500 + row / 10 * 300);
    BranchBuilder full(Home, u'C');
    GivenOpen(full.Boxes(hundred));
    ForgetMap(P.Map, P.Mouse, P.Tools);
    P.Map.Owner = P.Branch.WorkDir;
    OpenMap();
    P.Form1->mnuTreeTools.Click();
    PlaceBox({5000, 10000});
    ASSERT_EQ(P.Map.SBoxes, 100);

    Leave(Answer::Yes);

    EXPECT_EQ(Home.ReadFile(full.MapFile()), MapFileBytes(u"LfgDat_C", hundred, u"", u""));
    EXPECT_EQ(P.Map.SBoxes, 99);
    EXPECT_EQ(Box(100), RowTexts(5, QString()));
}

TEST_F(LeaveToolsTest, EachDeletedText_CostsTheHighestOne)
{
    for (const int y : {4000, 5000, 6000})
        PlaceText({1000, y + 50}, QString::number(y));
    Choose(ToolSelection::TextDelete);
    PressAndRelease({1100, 3050});
    PressAndRelease({1100, 4050});

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(boxes, lines, u""));
}

TEST_F(LeaveToolsTest, DeletedLinesAndBoxes_CostNoOther)
{
    DrawNewLine({1000, 6000}, {2000, 6000});
    PlaceBox({5000, 5000});
    Choose(ToolSelection::LineDelete);
    PressAndRelease({1500, 2000});
    Choose(ToolSelection::BoxDelete);
    PressAndRelease({3300, 600});

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(),
              BytesOf(u"1000,500,0,A001,John,2000,500,0,A002,Jane,4693,4892,0,0,,", u"1000,6000,2000,6000,0,", texts));
}

TEST_F(LeaveToolsTest, GestureStillGoingOn_IsDropped)
{
    Choose(ToolSelection::BoxMove);
    Press({3300, 600});
    Move({3500, 900});
    ASSERT_EQ(Picture.Mode, DrawMode::NotXor);
    const QByteArray before = MapBytes();

    ExpectSaveQuestion(Answer::No);
    P.Form1->mnuEdit.Click();
    Release({3500, 900});

    EXPECT_EQ(Picture.Mode, DrawMode::Copy);
    ExpectMapAsItWas();
    EXPECT_EQ(MapBytes(), before);
}

TEST_F(LeaveToolsTest, TheMouseIsTheMapsAgain)
{
    Leave(Answer::No);
    QStringList sounds;
    P.Form1->MMControl1.Act = [&](QStringView command) { sounds.push_back(command.toString()); };

    PressAndRelease({1300, 600});

    EXPECT_EQ(sounds, QStringList{u"Sound"_s});
    EXPECT_EQ(P.Map.SBoxes, 2);
}

class SpoiltLinesTest : public ToolsTest
{
protected:
    SpoiltLinesTest()
    {
        BranchA.Boxes(boxes).Texts(texts).Lines(QString(lines + u"1000,4000,two thousand,4000,0,1,2,3,4,5,"));
        GivenOpen(BranchA);
        DrawBranchMap(P);
        P.Form1->mnuTreeTools.Click();
    }
};

TEST_F(SpoiltLinesTest, No_WhatCanBeReadOfTheLinesIsThere_AndAllElse)
{
    const QByteArray before = MapBytes();

    Leave(Answer::No);

    EXPECT_EQ(Line(0), (std::vector<int>{1000, 2000, 2000, 2000, 255}));
    EXPECT_EQ(Line(1), std::vector<int>(5, 0));
    EXPECT_EQ(P.Map.SLines, 0);
    EXPECT_EQ(Text(0)[TextColumn::Text], u"One"_s);
    EXPECT_EQ(Box(2)[BoxColumn::X], u"3000"_s);
    EXPECT_EQ(P.Tools.ToolMode, 0);
    EXPECT_EQ(MapBytes(), before);
}

TEST_F(SpoiltLinesTest, LineDrawn_CostsNoneThatCouldBeRead)
{
    DrawNewLine({1000, 6000}, {2000, 6000});

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(boxes, QString(lines + u"1000,6000,2000,6000,0,"), texts));
}

TEST_F(SpoiltLinesTest, Yes_CostsTheLinesThatCannotBeRead)
{
    Leave(Answer::Yes);

    // Nothing is left of the one that broke off.
    EXPECT_EQ(MapBytes(), BytesOf(boxes, lines, texts));
    EXPECT_EQ(Text(0)[TextColumn::Text], u"One"_s);
    EXPECT_EQ(P.Tools.ToolMode, 0);
}

TEST_F(LeaveToolsTest, ReadOnlyMap_TheErrorIsRaised_AndTheOldMapStays)
{
    const QByteArray before = MapBytes();
    Edit();
    Home.MakeReadOnly(BranchA.MapFile());
    ExpectSaveQuestion(Answer::Yes);

    EXPECT_EQ(RefusalOf([&] { Click(&forms::Form1::Image8); }), ErrorNumber::PathFileAccess);

    EXPECT_EQ(MapBytes(), before);
}

TEST_F(LeaveToolsTest, ReadOnlyMap_EndsTheProgramWithTheErrorsBox)
{
    const QByteArray before = MapBytes();
    Edit();
    Home.MakeReadOnly(BranchA.MapFile());
    ExpectSaveQuestion(Answer::Yes);
    Prompts.Expect(u"Lineforge",
                   QString(u"Run-time error '75':\n\nPath/File access error\n\n"_s +
                           u"This can't be opened, made, changed or removed:\n"_s + Home.Path(BranchA.MapFile())),
                   Buttons::Error);

    RunHandler(P, P.Form1->Image8.Click);

    EXPECT_EQ(Machine.Loop.ExitCode, 1);
    EXPECT_EQ(MapBytes(), before);
}

TEST_F(LeaveToolsTest, ReadOnlyMap_NoIsNotRefused)
{
    Edit();
    Home.MakeReadOnly(BranchA.MapFile());

    Leave(Answer::No);

    ExpectMapAsItWas();
}

TEST_F(LeaveToolsTest, RecordOfTheOpeningIsDeleted_WhoeverIsCurrentStaysSo)
{
    ASSERT_EQ(Current(), u"A001"_s);
    Records(P.Form3).Delete();
    Records(P.Form3).MoveLast();

    Leave(Answer::No);

    EXPECT_EQ(Current(), u"A003"_s);
}

TEST_F(LeaveToolsTest, RecordOfTheOpeningIsDeleted_NobodyIsCurrent_TheFirstBecomesSo)
{
    Records(P.Form3).Delete();
    Records(P.Form3).MoveLast();
    Records(P.Form3).MoveNext();

    Leave(Answer::No);

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(P.Form1->Shape1.Left, 2000 + 247);
}

} // namespace
} // namespace lineforge
