#include "map/tools/ToolsTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::WithParamInterface;

const RowTexts freeText(6, QStringLiteral("0"));

class NewTextTest : public ToolsTest
{
};

TEST_F(NewTextTest, StandsAtThePress50Higher_WithFontAndColour)
{
    GivenTools();
    DialogColour = Blue;
    PictureByHand hand;
    hand->ForeColor = Blue;
    hand->PrintAt({3000, 1950}, u"The Smiths"_s);

    PlaceText({3000, 2000}, u"The Smiths");

    EXPECT_EQ(P.Map.STexts, 0);
    EXPECT_EQ(Text(0), (RowTexts{u"3000"_s, u"1950"_s, u"The Smiths"_s, u"Arial"_s, u"8"_s, QString::number(Blue)}));
    EXPECT_TRUE(SameDrawing(Picture, *hand));
}

TEST_F(NewTextTest, IsSeenBeforeTheRelease_AndNoGestureBegins)
{
    GivenTools();
    Choose(ToolSelection::TextDraw);
    ExpectText(u"The Smiths");

    Press({3000, 2000});

    EXPECT_FALSE(IsBlank(Picture));
    EXPECT_EQ(P.Tools.ToolStep, 0);
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::TextDraw);
}

TEST_F(NewTextTest, GoesToTheRowAfterTheCount)
{
    BranchA.Texts(u"300,150,One,Arial,8,0,300,450,Two,Arial,8,0,");
    GivenTools();

    PlaceText({3000, 2000}, u"Three");

    EXPECT_EQ(P.Map.STexts, 2);
    EXPECT_EQ(Text(2)[TextColumn::Text], u"Three"_s);
    EXPECT_EQ(Text(1)[TextColumn::Text], u"Two"_s);
}

TEST_F(NewTextTest, Cancelled_LeavesAnEmptyTextThere)
{
    GivenTools();

    PlaceText({3000, 2000}, u"");

    EXPECT_EQ(P.Map.STexts, 0);
    EXPECT_EQ(Text(0), (RowTexts{u"3000"_s, u"1950"_s, u""_s, u"Arial"_s, u"8"_s, u"0"_s}));
    EXPECT_TRUE(IsBlank(Picture));
    Leave(Answer::Yes);
    EXPECT_EQ(MapBytes(), BytesOf(u"", u"", u"3000,1950,,Arial,8,0,"));
}

TEST_F(NewTextTest, ChosenFont_PrintsIt_AndIsGivenBackAfterThePress)
{
    GivenTools();
    Picture.Font = {u"Arial"_s, 20};
    Picture.ForeColor = Green;
    Choose(ToolSelection::TextDraw);
    ExpectText(u"Large");
    PictureByHand hand;
    hand->Font.Size = 20;
    hand->PrintAt({3000, 1950}, u"Large"_s);

    Press({3000, 2000});

    EXPECT_TRUE(SameDrawing(Picture, *hand));
    EXPECT_EQ(Text(0)[TextColumn::FontSize], u"20"_s);
    EXPECT_EQ(Picture.Font, (TextFont{u"Arial"_s, 20}));
    EXPECT_EQ(Picture.ForeColor, Green);
    Release({3000, 2000});
    EXPECT_EQ(Picture.ForeColor, Green);
}

TEST_F(NewTextTest, SizeWithAFraction_IsKept)
{
    GivenTools();
    Picture.Font = {u"Arial"_s, 8.25};

    PlaceText({3000, 2000}, u"Small");

    EXPECT_EQ(Text(0)[TextColumn::FontSize], u"8.25"_s);
}

TEST_F(NewTextTest, ChosenArial_ServesTheNextTextToo_WhileTheMapHasNoCaptions)
{
    GivenTools();
    Picture.Font = {u"Arial"_s, 20};

    PlaceText({3000, 2000}, u"One");
    PlaceText({3000, 4000}, u"Two");

    EXPECT_EQ(Text(1)[TextColumn::FontSize], u"20"_s);
}

TEST_F(NewTextTest, ChosenArial_CaptionsLeaveTheOrdinarySizeBehind)
{
    BranchA.Boxes(u"1000,500,0,A001,John,");
    GivenTools();
    Picture.Font = {u"Arial"_s, 20};

    PlaceText({3000, 2000}, u"One");
    PlaceText({3000, 4000}, u"Two");

    EXPECT_EQ(Text(0)[TextColumn::FontSize], u"20"_s);
    EXPECT_EQ(Text(1)[TextColumn::FontSize], u"8"_s);
}

TEST_F(NewTextTest, ChosenOtherFont_ServesOneText_ForTheRepaintingResetsIt)
{
    GivenTools();
    Picture.Font = {u"Courier"_s, 20};

    PlaceText({3000, 2000}, u"One");
    PlaceText({3000, 4000}, u"Two");

    EXPECT_EQ(Text(0)[TextColumn::FontName], u"Courier"_s);
    EXPECT_EQ(Text(1)[TextColumn::FontName], u"Arial"_s);
    EXPECT_EQ(Text(1)[TextColumn::FontSize], u"8"_s);
}

TEST_F(NewTextTest, ChosenOtherFont_IsReadBackAndLooksTheSame)
{
    GivenTools();
    Picture.Font = {u"Courier"_s, 20};
    PlaceText({3000, 2000}, u"One");
    const QImage before = Shown();

    Leave(Answer::Yes);

    EXPECT_TRUE(SameImage(Shown(), before));
}

TEST_F(NewTextTest, CommaInIt_ShiftsWhatStandsBehindIt)
{
    GivenTools();
    PlaceText({3000, 2000}, u"A, B");

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(u"", u"", u"3000,1950,A, B,Arial,8,0,"));
    EXPECT_EQ(Text(0)[TextColumn::Text], u"A"_s);
    EXPECT_EQ(Text(0)[TextColumn::FontName], u" B"_s);
}

TEST_F(NewTextTest, XOfZero_IsLostAtTheSave)
{
    GivenTools();
    PlaceText({0, 2000}, u"Lost");
    PlaceText({1, 2000}, u"Kept");

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(u"", u"", u"1,1950,Kept,Arial,8,0,"));
}

// Three texts below each other in the rows 0 to 2.
class TextToolTest : public ToolsTest
{
protected:
    TextToolTest()
    {
        BranchA.Texts(u"1000,1000,One,Arial,8,255,1000,2000,Two,Courier,14,255,1000,3000,Three,Arial,8,255,");
    }
};

TEST_F(TextToolTest, Move_TakesTheTextAlong)
{
    GivenTools();
    Choose(ToolSelection::TextMove);

    Drag({{1100, 2050}, {1200, 2300}, {3100, 2250}});

    EXPECT_EQ(Text(1), (RowTexts{u"3000"_s, u"2200"_s, u"Two"_s, u"Courier"_s, u"14"_s, u"255"_s}));
    EXPECT_EQ(P.Map.STexts, 2);
}

TEST_F(TextToolTest, Move_OnlyTheTextsAtTheirPlacesAreSeen)
{
    GivenTools();
    Choose(ToolSelection::TextMove);
    PictureByHand hand;
    hand->ForeColor = Red;
    hand->PrintAt({1000, 1000}, u"One"_s);
    hand->PrintAt({1000, 3000}, u"Three"_s);
    hand->Font = {u"Courier"_s, 14};
    hand->PrintAt({3000, 2200}, u"Two"_s);

    Drag({{1100, 2050}, {1200, 2300}, {3100, 2250}});

    EXPECT_TRUE(SameDrawing(Picture, *hand));
    EXPECT_EQ(Picture.Mode, DrawMode::Copy);
}

TEST_F(TextToolTest, Move_TravelsAsAGreyRectangleOfTheTextsSize)
{
    GivenTools();
    Choose(ToolSelection::TextMove);
    PictureByHand hand;
    hand->ForeColor = Red;
    hand->PrintAt({1000, 1000}, u"One"_s);
    hand->PrintAt({1000, 3000}, u"Three"_s);
    hand->Font = {u"Courier"_s, 14};
    hand->Mode = DrawMode::Xor;
    hand->ForeColor = QbColor(8);
    hand->Box({3000, 2200, hand->TextWidth(u"Two"_s), hand->TextHeight(u"Two"_s)});

    Press({1100, 2050});
    Move({1200, 2300});
    Move({3100, 2250});

    EXPECT_EQ(Picture.Mode, DrawMode::Xor);
    EXPECT_TRUE(SameDrawing(Picture, *hand));
}

TEST_F(TextToolTest, Move_PenFontAndInputComeBack)
{
    GivenTools();
    Picture.ForeColor = Green;
    Picture.Font = {u"Arial"_s, 20};
    Choose(ToolSelection::TextMove);

    Press({1100, 2050});
    EXPECT_EQ(P.Scratch.sInput, u"Two"_s);
    Move({1200, 2300});
    Release({1200, 2300});

    EXPECT_EQ(Picture.ForeColor, Green);
    EXPECT_EQ(Picture.Font, (TextFont{u"Arial"_s, 20}));
    EXPECT_EQ(P.Scratch.sInput, QString());
    EXPECT_EQ(P.Tools.ToolStep, 0);
}

TEST_F(TextToolTest, Move_PressAndRelease_ChangesNothing)
{
    GivenTools();
    Choose(ToolSelection::TextMove);
    const QImage before = Shown();

    PressAndRelease({1100, 2050});

    EXPECT_EQ(Text(1)[TextColumn::X], u"1000"_s);
    EXPECT_TRUE(SameImage(Shown(), before));
    EXPECT_EQ(Picture.Mode, DrawMode::Copy);
}

struct Edge {
    Point Press;
    bool IsHit;
};

class TextToolEdgeTest : public TextToolTest, public WithParamInterface<Edge>
{
};

TEST_P(TextToolEdgeTest, HitAreaIs600By100_EdgesOutside_WhateverTheTextsSize)
{
    GivenTools();
    Choose(ToolSelection::TextMove);

    Press(GetParam().Press);

    EXPECT_EQ(P.Tools.TextMiss, GetParam().IsHit ? 0 : 1);
    EXPECT_EQ(P.Tools.TextIdx, GetParam().IsHit ? 1 : 3);
    EXPECT_EQ(P.Tools.ToolStep, GetParam().IsHit ? -1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Edges, TextToolEdgeTest,
                         testing::Values(Edge{{1000, 2050}, false}, Edge{{1001, 2050}, true}, Edge{{1599, 2050}, true},
                                         Edge{{1600, 2050}, false}, Edge{{1100, 2000}, false}, Edge{{1100, 2001}, true},
                                         Edge{{1100, 2099}, true}, Edge{{1100, 2100}, false}));

TEST_F(TextToolTest, TextsThatOverlap_TheLowerRowWins)
{
    BranchA.Texts(u"1000,1000,One,Arial,8,255,1050,1010,Two,Arial,8,255,");
    GivenTools();
    Choose(ToolSelection::TextMove);

    Drag({{1100, 1050}, {1100, 2050}});

    EXPECT_EQ(Text(0)[TextColumn::Y], u"2000"_s);
    EXPECT_EQ(Text(1)[TextColumn::Y], u"1010"_s);
}

class TextMissTest : public TextToolTest, public WithParamInterface<int>
{
};

TEST_P(TextMissTest, NoTextUnderThePress_DoesNothingSilently_ButRepaints)
{
    GivenTools();
    const QImage before = Shown();
    Choose(GetParam());
    Picture.Cls();

    Press({5500, 5500});
    Move({1100, 1050});
    EXPECT_TRUE(IsBlank(Picture));
    Release({1100, 1050});

    EXPECT_TRUE(SameImage(Shown(), before));
    EXPECT_EQ(P.Map.STexts, 2);
    EXPECT_EQ(Text(0)[TextColumn::Y], u"1000"_s);
}

INSTANTIATE_TEST_SUITE_P(MoveAndDelete, TextMissTest, testing::Values(19, 29));

TEST_F(TextToolTest, TextWithXOfZero_AndOneAtNoPlace_AreNeverHit)
{
    BranchA.Texts(
        u"0,1000,Free,Arial,8,0,here,2000,Nowhere,Arial,8,0,1000,there,Nowhere,Arial,8,0,1,3000,Last,Arial,8,0,");
    GivenTools();
    Choose(ToolSelection::TextDelete);

    for (const Point at : {Point{100, 1050}, Point{100, 2050}, Point{1100, 50}}) {
        PressAndRelease(at);
        EXPECT_EQ(P.Tools.TextMiss, 1);
    }

    EXPECT_EQ(P.Map.STexts, 3);
    EXPECT_EQ(Text(1)[TextColumn::Text], u"Nowhere"_s);
    EXPECT_EQ(Text(2)[TextColumn::Text], u"Nowhere"_s);
}

TEST_F(TextToolTest, LoneText_IsNotSearchedFor_SoTheLastAnswerStands)
{
    BranchA.Texts(u"1000,1000,One,Arial,8,255,");
    GivenTools();
    ASSERT_EQ(P.Map.STexts, 0);
    Choose(ToolSelection::TextMove);

    Drag({{6000, 6000}, {6100, 6200}});
    EXPECT_EQ(Text(0)[TextColumn::X], u"1100"_s);

    P.Tools.TextMiss = 1;
    Drag({{1150, 1250}, {2150, 2250}});
    EXPECT_EQ(Text(0)[TextColumn::X], u"1100"_s);
}

TEST_F(TextToolTest, PositionThatIsNoNumber_IsNeverHit_AndWrittenBackAsItStands)
{
    const QStringView texts = u"here,1000,One,Arial,8,0,1000,there,Two,Courier,10,255,,,Three,Arial,8,0,"
                              u"1000,2000,Four,Arial,8,0,";
    BranchA.Texts(texts);
    GivenTools();
    for (const int tool : {19, 29}) {
        Choose(tool);
        for (const Point press : {Point{1100, 1050}, Point{100, 50}, Point{100, 1050}, Point{1100, 50}}) {
            Drag({press, {press.X + 500, press.Y + 500}});
            EXPECT_EQ(P.Tools.TextMiss, 1);
        }
    }
    EXPECT_EQ(P.Map.STexts, 3);

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(u"", u"", texts));
}

TEST_F(TextToolTest, NoTexts_NothingIsHit)
{
    BranchA.Texts(u"0,0,0,");
    GivenTools();
    ASSERT_EQ(P.Map.STexts, -1);
    Choose(ToolSelection::TextDelete);

    PressAndRelease({1100, 1050});

    EXPECT_EQ(P.Tools.TextMiss, 1);
    EXPECT_EQ(P.Map.STexts, -1);
}

TEST_F(TextToolTest, Delete_FreesTheRow_AndLowersTheCount)
{
    GivenTools();
    Picture.ForeColor = Green;
    Choose(ToolSelection::TextDelete);

    PressAndRelease({1100, 2050});

    EXPECT_EQ(Text(1), freeText);
    EXPECT_EQ(P.Map.STexts, 1);
    EXPECT_EQ(CountPixels(Picture, Red, {900, 1900, 3000, 900}), 0);
    EXPECT_EQ(Picture.ForeColor, Green);
}

TEST_F(TextToolTest, DeleteClickedAgain_WhenOneTextIsLeft_DeletesNothingMore)
{
    BranchA.Texts(u"1000,1000,One,Arial,8,255,1000,2000,Two,Arial,8,255,");
    GivenTools();
    Choose(ToolSelection::TextDelete);
    PressAndRelease({1100, 1050});
    ASSERT_EQ(P.Map.STexts, 0);

    PressAndRelease({1100, 1050});
    PressAndRelease({1100, 2050});

    EXPECT_EQ(P.Tools.TextMiss, 1);
    EXPECT_EQ(P.Map.STexts, 0);
    EXPECT_EQ(Text(1)[TextColumn::Text], u"Two"_s);
}

TEST_F(TextToolTest, DeleteFirstOfThree_SavedWithYes_OnlyTheSecondIsInTheFile)
{
    GivenTools();
    Choose(ToolSelection::TextDelete);
    PressAndRelease({1100, 1050});

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(u"", u"", u"1000,2000,Two,Courier,14,255,"));
    EXPECT_EQ(P.Map.STexts, 0);
    EXPECT_EQ(Text(0)[TextColumn::Text], u"Two"_s);
    EXPECT_EQ(Text(1), (RowTexts{u""_s, u""_s, u""_s, u""_s, u""_s, u""_s}));
}

TEST_F(TextToolTest, Delete_HighestSurvivingText_IsNotHitUntilTheToolsClose)
{
    GivenTools();
    Choose(ToolSelection::TextDelete);
    PressAndRelease({1100, 1050});

    Choose(ToolSelection::TextMove);
    Drag({{1100, 3050}, {1100, 4050}});
    EXPECT_EQ(P.Tools.TextMiss, 1);
    EXPECT_EQ(Text(2)[TextColumn::Y], u"3000"_s);

    Leave(Answer::No);
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::TextMove);
    Drag({{1100, 3050}, {1100, 4050}});
    EXPECT_EQ(Text(2)[TextColumn::Y], u"4000"_s);
}

} // namespace
} // namespace lineforge
