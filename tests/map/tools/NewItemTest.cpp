#include "map/tools/ToolsTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// What is drawn after a deletion. The count has gone down by then while the rows have kept their places: the new item
// goes to the first free row above the count, which rises to it, and leaves those that stand there alone. Where that
// would be no row that is saved it goes to the first free row of all.
class NewItemTest : public ToolsTest
{
protected:
    void Delete(int tool, Point at)
    {
        Choose(tool);
        PressAndRelease(at);
    }
};

class NewBoxRowTest : public NewItemTest
{
protected:
    NewBoxRowTest()
    {
        BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Jane"}, {u"Gender", u"Female"}});
    }
};

TEST_F(NewBoxRowTest, EmptyBoxDeleted_TheHighestBoxKeepsItsRecordAndItsPlace)
{
    BranchA.Boxes(u"1000,500,0,0,,2000,500,0,A001,John,3000,500,0,A002,Jane,");
    GivenTools();
    Delete(28, {1300, 600});
    ASSERT_EQ(P.Map.SBoxes, 1);

    PlaceBox({5307, 3108});

    EXPECT_EQ(Box(2), (RowTexts{u"3000"_s, u"500"_s, u"0"_s, u"A002"_s, u"Jane"_s}));
    EXPECT_EQ(Box(3), (RowTexts{u"5000"_s, u"3000"_s, u"0"_s, u"0"_s, u""_s}));
    EXPECT_EQ(P.Map.SBoxes, 3);
    Leave(Answer::Yes);
    EXPECT_EQ(MapBytes(), BytesOf(u"2000,500,0,A001,John,3000,500,0,A002,Jane,5000,3000,0,0,,", u"", u""));
}

TEST_F(NewBoxRowTest, TheHighestBox_IsHitAgain)
{
    BranchA.Boxes(u"1000,500,0,0,,2000,500,0,A001,John,3000,500,0,A002,Jane,");
    GivenTools();
    Delete(28, {1300, 600});
    PlaceBox({5307, 3108});
    Choose(ToolSelection::BoxMove);

    Drag({{3300, 600}, {3300, 1600}});

    EXPECT_EQ(Box(2), (RowTexts{u"3000"_s, u"1500"_s, u"0"_s, u"A002"_s, u"Jane"_s}));
}

TEST_F(NewBoxRowTest, SeveralDeleted_AllThatStandAboveTheCountStay)
{
    BranchA.Boxes(u"1000,500,0,0,,2000,500,0,0,,3000,500,0,0,,4000,500,0,A001,John,5000,500,0,A002,Jane,");
    GivenTools();
    Delete(28, {1300, 600});
    Delete(28, {2300, 600});
    ASSERT_EQ(P.Map.SBoxes, 2);

    PlaceBox({6307, 3108});
    PlaceBox({7307, 3108});

    EXPECT_EQ(P.Map.SBoxes, 6);
    Leave(Answer::Yes);
    EXPECT_EQ(
        MapBytes(),
        BytesOf(u"3000,500,0,0,,4000,500,0,A001,John,5000,500,0,A002,Jane,6000,3000,0,0,,7000,3000,0,0,,", u"", u""));
}

TEST_F(NewBoxRowTest, FreeRowAboveTheCount_IsTaken_AndNothingOfItsOldBoxStays)
{
    BranchA.Boxes(u"1000,500,0,0,,2000,500,0,A001,John,3000,500,255,A009,Gone,");
    GivenTools();
    Delete(28, {3300, 600});
    ASSERT_EQ(P.Map.SBoxes, 1);

    PlaceBox({5307, 3108});

    EXPECT_EQ(Box(2), (RowTexts{u"5000"_s, u"3000"_s, u"0"_s, u"0"_s, u""_s}));
    EXPECT_EQ(P.Map.SBoxes, 2);
    Leave(Answer::Yes);
    EXPECT_EQ(MapBytes(), BytesOf(u"1000,500,0,0,,2000,500,0,A001,John,5000,3000,0,0,,", u"", u""));
}

TEST_F(NewBoxRowTest, FreeRowsBelowTheCount_AreNotTaken)
{
    BranchA.Boxes(u"1000,500,0,0,,2000,500,0,0,,3000,500,0,A001,John,");
    GivenTools();
    Delete(28, {1300, 600});
    PlaceBox({5307, 3108});

    EXPECT_EQ(Box(0)[BoxColumn::X], u"0"_s);
    EXPECT_EQ(Box(3)[BoxColumn::X], u"5000"_s);
}

TEST_F(NewBoxRowTest, BoxAtNoPlaceAboveTheCount_IsWrittenBackAsItStands)
{
    BranchA.Boxes(u"1000,500,0,0,,2000,500,0,A001,John,here,500,0,A002,Jane,");
    GivenTools();
    Delete(28, {1300, 600});

    PlaceBox({5307, 3108});

    Leave(Answer::Yes);
    EXPECT_EQ(MapBytes(), BytesOf(u"2000,500,0,A001,John,here,500,0,A002,Jane,5000,3000,0,0,,", u"", u""));
}

TEST_F(NewBoxRowTest, NoRowAboveTheCountIsSaved_TheFirstFreeIsTaken_AndTheCountStays)
{
    GivenTools();
    GivenBox(0, {1000, 500}, u"A001");
    GivenBox(200, {3000, 500}, u"A002");
    P.Map.SBoxes = 199;

    PlaceBox({5307, 3108});

    EXPECT_EQ(Box(1), (RowTexts{u"5000"_s, u"3000"_s, u"0"_s, u"0"_s, u""_s}));
    EXPECT_EQ(Box(200), (RowTexts{u"3000"_s, u"500"_s, u"0"_s, u"A002"_s, u""_s}));
    EXPECT_EQ(P.Map.SBoxes, 199);
}

// Those above the count are in use: they count again.
TEST_F(NewBoxRowTest, BoxDeletedOfAFullMap_TheNextTakesItsRow_AndTheHighestIsHitAgain)
{
    GivenTools();
    for (int row = 0; row <= LastFiledBox; ++row)
        GivenBox(row, {10 + row % 10 * 700, 500 + row / 10 * 300});
    P.Map.SBoxes = LastFiledBox;
    Delete(28, {2410, 600});
    ASSERT_EQ(P.Map.SBoxes, 98);

    PlaceBox({5307, 8108});

    EXPECT_EQ(Box(3), (RowTexts{u"5000"_s, u"8000"_s, u"0"_s, u"0"_s, u""_s}));
    EXPECT_EQ(P.Map.SBoxes, LastFiledBox);
}

class NewLineRowTest : public NewItemTest
{
protected:
    NewLineRowTest()
    {
        BranchA.Lines(u"1000,1000,2000,1000,0,1000,2000,2000,2000,0,1000,3000,2000,3000,255,");
        GivenTools();
        Delete(27, {1500, 1000});
        EXPECT_EQ(P.Map.SLines, 1);
    }
    static constexpr QStringView Survivors = u"1000,2000,2000,2000,0,1000,3000,2000,3000,255,";
};

TEST_F(NewLineRowTest, LineDeleted_TheHighestLineStays)
{
    DrawNewLine({4000, 4000}, {5000, 4000});

    EXPECT_EQ(Line(2), (std::vector<int>{1000, 3000, 2000, 3000, 255}));
    EXPECT_EQ(Line(3), (std::vector<int>{4000, 4000, 5000, 4000, 0}));
    EXPECT_EQ(P.Map.SLines, 3);
    Leave(Answer::Yes);
    EXPECT_EQ(MapBytes(), BytesOf(u"", QString(Survivors + u"4000,4000,5000,4000,0,"), u""));
}

TEST_F(NewLineRowTest, LineDeleted_ARefusedLineTakesNothingAway)
{
    DrawNewLine({4000, 4000}, {4010, 4010});

    EXPECT_EQ(Line(2), (std::vector<int>{1000, 3000, 2000, 3000, 255}));
    EXPECT_EQ(Line(3), std::vector<int>(5));
    EXPECT_EQ(P.Map.SLines, 1);
    Leave(Answer::Yes);
    EXPECT_EQ(MapBytes(), BytesOf(u"", Survivors, u""));
}

TEST_F(NewLineRowTest, LineDeleted_CtrlGoesOnFromTheHighestLine)
{
    Choose(ToolSelection::LineDraw);

    Drag({{4000, 4000}, {5000, 4000}}, Ctrl);

    EXPECT_EQ(Line(3), (std::vector<int>{2000, 3000, 5000, 4000, 0}));
}

TEST_F(NewLineRowTest, ChainDrawnLast_DeletedSince_CtrlGoesOnFromTheHighestLineThatIsLeft)
{
    DrawNewLine({4000, 4000}, {5000, 4000});
    Drag({{7000, 7000}, {5000, 6000}}, Ctrl);
    Delete(27, {4500, 4000});
    ASSERT_EQ(Line(3), std::vector<int>(5));
    ASSERT_EQ(Line(4), std::vector<int>(5));
    Choose(ToolSelection::LineDraw);

    Drag({{7000, 7000}, {3000, 6000}}, Ctrl);

    EXPECT_EQ(Line(4), (std::vector<int>{2000, 3000, 3000, 6000, 0}));
    Leave(Answer::Yes);
    EXPECT_EQ(MapBytes(), BytesOf(u"", QString(Survivors + u"2000,3000,3000,6000,0,"), u""));
}

TEST_F(NewLineRowTest, NoRowAboveTheCountIsSaved_TheFirstFreeIsTaken_AndTheCountStays)
{
    GivenLine(200, {1000, 5000}, {2000, 5000});
    P.Map.SLines = 199;

    DrawNewLine({4000, 4000}, {5000, 4000});

    EXPECT_EQ(Line(0), (std::vector<int>{4000, 4000, 5000, 4000, 0}));
    EXPECT_EQ(Line(200), (std::vector<int>{1000, 5000, 2000, 5000, 0}));
    EXPECT_EQ(P.Map.SLines, 199);
}

TEST_F(NewLineRowTest, NoRowAboveTheCountIsSaved_CtrlGoesOnFromTheHighestLine)
{
    GivenLine(199, {1000, 5000}, {2000, 5000});
    P.Map.SLines = 199;
    Choose(ToolSelection::LineDraw);

    Drag({{4000, 4000}, {6000, 4000}}, Ctrl);

    EXPECT_EQ(Line(0), (std::vector<int>{2000, 5000, 6000, 4000, 0}));
}

TEST_F(NewLineRowTest, NoRowAboveTheCountIsSaved_CtrlGoesOnFromTheLineDrawnLast)
{
    GivenLine(199, {1000, 5000}, {2000, 5000});
    P.Map.SLines = 199;
    DrawNewLine({4000, 4000}, {5000, 4000});

    Drag({{7000, 7000}, {5000, 6000}}, Ctrl);
    Drag({{7000, 7000}, {3000, 6000}}, Ctrl);

    EXPECT_EQ(Line(3), (std::vector<int>{5000, 4000, 5000, 6000, 0}));
    EXPECT_EQ(Line(4), (std::vector<int>{5000, 6000, 3000, 6000, 0}));
}

TEST_F(NewLineRowTest, LineDrawnLast_MovedSince_CtrlGoesOnFromItsEnd)
{
    DrawNewLine({4000, 4000}, {5000, 4000});
    Choose(ToolSelection::LineMove);
    Drag({{4500, 4000}, {4500, 4300}});
    Choose(ToolSelection::LineDraw);

    Drag({{7000, 7000}, {5000, 6000}}, Ctrl);

    EXPECT_EQ(Line(4), (std::vector<int>{5000, 4300, 5000, 6000, 0}));
}

// A line drawn after the deletion may have its row.
TEST_F(NewLineRowTest, LineDrawnLast_DeletedSince_CtrlGoesOnFromTheHighestLine)
{
    DrawNewLine({4000, 4000}, {5000, 4000});
    Delete(27, {4500, 4000});
    Choose(ToolSelection::LineDraw);

    Drag({{7000, 7000}, {5000, 6000}}, Ctrl);

    EXPECT_EQ(Line(3), (std::vector<int>{2000, 3000, 5000, 6000, 0}));
}

TEST_F(NewLineRowTest, LineDrawnLast_OfAMapThatHasBeenReadAfresh_IsTheHighestOne)
{
    GivenLine(199, {1000, 5000}, {2000, 5000});
    P.Map.SLines = 199;
    DrawNewLine({4000, 4000}, {5000, 4000});
    Leave(Answer::Yes);
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::LineDraw);

    Drag({{7000, 7000}, {5000, 6000}}, Ctrl);

    EXPECT_EQ(Line(4), (std::vector<int>{2000, 5000, 5000, 6000, 0}));
}

class NewTextRowTest : public NewItemTest
{
protected:
    NewTextRowTest()
    {
        BranchA.Texts(u"1000,1000,One,Arial,8,0,1000,2000,Two,Arial,8,0,1000,3000,Three,Courier,10,255,");
        GivenTools();
        Delete(29, {1100, 1050});
        EXPECT_EQ(P.Map.STexts, 1);
    }
};

TEST_F(NewTextRowTest, TextDeleted_TheHighestTextStays)
{
    PlaceText({3000, 2050}, u"Four");

    EXPECT_EQ(Text(2)[TextColumn::Text], u"Three"_s);
    EXPECT_EQ(Text(3)[TextColumn::Text], u"Four"_s);
    EXPECT_EQ(P.Map.STexts, 3);
    Leave(Answer::Yes);
    EXPECT_EQ(MapBytes(), BytesOf(u"", u"",
                                  u"1000,2000,Two,Arial,8,0,1000,3000,Three,Courier,10,255,"
                                  u"3000,2000,Four,Arial,8,0,"));
}

TEST_F(NewTextRowTest, NoFreeRowAboveTheCount_TheFirstFreeIsTaken_AndTheLastTextCountsAgain)
{
    GivenText(200, {1000, 5000}, u"Last");
    P.Map.STexts = 199;

    PlaceText({4000, 4050}, u"Four");

    EXPECT_EQ(Text(0)[TextColumn::Text], u"Four"_s);
    EXPECT_EQ(Text(200)[TextColumn::Text], u"Last"_s);
    EXPECT_EQ(P.Map.STexts, 200);
}

} // namespace
} // namespace lineforge
