#include "map/tools/ToolsTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// A new branch in which no more than one item of a kind is left. It stands in row 0 and is never searched for: what
// was hit before counts, and with the map of before that is forgotten.
class LoneItemTest : public ToolsTest
{
protected:
    LoneItemTest() { Home.WriteFile(u"Tree99.jpg", Portrait); }

    void Reopen() { P.Form1->mnuTreeTools.Click(); }
    void DoubleClick(Point at)
    {
        PressAndRelease(at);
        Picture.DblClick();
        Release(at);
    }
    void MapNewRecord(Point at)
    {
        P.Form1->mnuMapSubject.Click();
        P.Form7->Command1.Click();
        DoubleClick(at);
    }
    void ExpectRecord(QStringView file)
    {
        EXPECT_EQ(Records(P.Form3).Text(u"File"), file);
        EXPECT_EQ(Home.ReadFile(u"LfgDat_A/A001Sub.jpg"), Portrait);
    }

    const QByteArray Portrait = PictureBytes(Qt::yellow);
};

TEST_F(LoneItemTest, BoxDrawnAndMoved_SavedAndMapped_HoldsTheFirstRecord)
{
    GivenTools();
    PlaceBox({4000, 3000});
    Choose(ToolSelection::BoxMove);
    Drag({{4000, 3000}, {4500, 3400}});
    Leave(Answer::Yes);
    ASSERT_EQ(P.Map.SBoxes, 0);

    MapNewRecord({4500, 3400});

    ExpectRecord(u"A001");
    EXPECT_EQ(Box(0), (RowTexts{u"4193"_s, u"3292"_s, u"0"_s, u"A001"_s, u""_s}));
    EXPECT_EQ(Box(1), RowTexts(5, QString()));
    EXPECT_EQ(MapBytes(), BytesOf(u"4193,3292,0,A001,,", u"", u""));
    P.Form3->Command2.Click();
    EXPECT_GT(CountPixels(Picture, Black, {4300, 3310, 400, 90}), 0);
    EXPECT_TRUE(IsAsPaintedAfresh());
}

TEST_F(LoneItemTest, BoxOfTheFile_Mapped_HoldsTheFirstRecord)
{
    BranchA.Boxes(u"1000,500,0,0,,");
    GivenMap();

    MapNewRecord({1300, 600});

    ExpectRecord(u"A001");
    EXPECT_EQ(MapBytes(), BytesOf(u"1000,500,0,A001,,", u"0,0,0,", u"0,0,0,"));
}

TEST_F(LoneItemTest, BoxOfTheFile_MappedBesideIt_TheRecordIsMade_AndTheBoxStaysEmpty)
{
    BranchA.Boxes(u"1000,500,0,0,,");
    GivenMap();

    for (const Point beside : {Point{5000, 5000}, Point{1000, 600}, Point{1615, 600}, Point{1300, 500}}) {
        MapNewRecord(beside);

        ExpectRecord(u"A001");
        EXPECT_EQ(MapBytes(), BytesOf(u"1000,500,0,0,,", u"0,0,0,", u"0,0,0,"));
        Records(P.Form3).Delete();
        OpenWorkDatabase(P);
    }
}

TEST_F(LoneItemTest, NoBoxAtAll_Mapped_TheRecordIsMade_AndNoRowHoldsIt)
{
    GivenMap();

    MapNewRecord({1300, 600});

    ExpectRecord(u"A001");
    EXPECT_EQ(Box(0), RowTexts(5, QString()));
    EXPECT_EQ(Box(1), RowTexts(5, QString()));
}

// The row that was hit last is gone; the tools were left to themselves.
TEST_F(LoneItemTest, BoxWhoseNeighbourWasDeleted_Mapped_HoldsTheFirstRecord)
{
    BranchA.Boxes(u"1000,500,0,0,,3000,500,0,0,,");
    GivenTools();
    Choose(ToolSelection::BoxDelete);
    PressAndRelease({3300, 600});
    ASSERT_EQ(P.Map.SBoxes, 0);
    P.Form1->Command4.Click();

    MapNewRecord({1300, 600});

    ExpectRecord(u"A001");
    EXPECT_EQ(Box(0)[BoxColumn::File], u"A001"_s);
    EXPECT_EQ(Box(1)[BoxColumn::File], u"0"_s);
}

TEST_F(LoneItemTest, BoxDeletedBehindTheTools_Mapped_TheRecordIsMade_AndNoRowHoldsIt)
{
    BranchA.Boxes(u"1000,500,0,0,,3000,500,0,0,,");
    GivenTools();
    Choose(ToolSelection::BoxDelete);
    PressAndRelease({3300, 600});
    ASSERT_EQ(P.Map.SBoxes, 0);
    P.Form1->Command4.Click();

    MapNewRecord({3300, 600});

    ExpectRecord(u"A001");
    EXPECT_EQ(Box(0)[BoxColumn::File], u"0"_s);
    EXPECT_EQ(Box(1)[BoxColumn::File], u"0"_s);
}

TEST_F(LoneItemTest, BranchWithRecords_Mapped_NothingIsHit)
{
    BranchA.Row({{u"File", u"A001"}}).Boxes(u"1000,500,0,0,,");
    GivenMap();
    const QByteArray before = MapBytes();

    MapNewRecord({1300, 600});

    EXPECT_EQ(MapBytes(), before);
    EXPECT_EQ(Box(0)[BoxColumn::File], u"0"_s);
    EXPECT_EQ(P.Tools.MapCursorMode, 1);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);
}

TEST_F(LoneItemTest, BoxMissedBefore_IsMovedAfterTheSave)
{
    GivenTools();
    PlaceBox({4000, 3000});
    Choose(ToolSelection::BoxMove);
    PressAndRelease({7000, 7000});
    ASSERT_EQ(P.Mouse.BoxMiss, 1);
    Leave(Answer::Yes);
    EXPECT_EQ(P.Mouse.BoxMiss, 0);

    Reopen();
    Choose(ToolSelection::BoxMove);
    Drag({{4000, 3000}, {4100, 3100}});

    EXPECT_EQ(Box(0), (RowTexts{u"3793"_s, u"2992"_s, u"0"_s, u"0"_s, u""_s}));
}

TEST_F(LoneItemTest, LineMissedBefore_IsMovedAfterTheSave)
{
    GivenTools();
    DrawNewLine({1000, 4000}, {2000, 4000});
    Choose(ToolSelection::LineMove);
    PressAndRelease({7000, 7000});
    ASSERT_EQ(P.Tools.LineMiss, 1);
    Leave(Answer::Yes);
    ASSERT_EQ(P.Map.SLines, 0);
    EXPECT_EQ(P.Tools.LineMiss, 0);

    Reopen();
    Choose(ToolSelection::LineMove);
    Drag({{1500, 4000}, {1600, 4100}});

    EXPECT_EQ(Line(0), (std::vector<int>{1100, 4100, 2100, 4100, 0}));
}

TEST_F(LoneItemTest, TextWhoseNeighbourWasDeleted_IsMovedAfterTheSave)
{
    GivenTools();
    PlaceText({1000, 3050}, u"One");
    PlaceText({1000, 5050}, u"Two");
    Choose(ToolSelection::TextDelete);
    PressAndRelease({1100, 5050});
    ASSERT_EQ(P.Tools.TextIdx, 1);
    Leave(Answer::Yes);
    ASSERT_EQ(P.Map.STexts, 0);
    EXPECT_EQ(P.Tools.TextIdx, 0);

    Reopen();
    Choose(ToolSelection::TextMove);
    Drag({{1100, 3050}, {1200, 3150}});

    EXPECT_EQ(Text(0)[TextColumn::X], u"1100"_s);
    EXPECT_EQ(Text(0)[TextColumn::Y], u"3100"_s);
}

TEST_F(LoneItemTest, ZoneInTheMiddleOfItsDrag_CarriesNothingOfTheNextMap)
{
    BranchA.Boxes(u"1000,1000,0,0,,2000,1000,0,0,,");
    GivenTools();
    Choose(ToolSelection::ZoneDraw);
    Drag({{500, 500}, {3000, 3000}});
    Press({1000, 1000});
    Move({1100, 1100});
    ForgetMap(P.Map, P.Mouse, P.Tools);
    OpenMap();

    Move({1300, 1300});

    EXPECT_EQ(Box(0)[BoxColumn::X], u"1000"_s);
    EXPECT_EQ(Box(1)[BoxColumn::X], u"2000"_s);
}

// One that is pressed wherever it stands, as long as it stands anywhere.
TEST_F(LoneItemTest, BoxWithARecord_DraggedFurtherThanAPlaceCanBeTold_IsNoError)
{
    BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}}).Boxes(u"12000,500,0,A001,John,");
    GivenTools();
    Choose(ToolSelection::BoxMove);

    Drag({{-7000, 600}, {15000, 600}});
    EXPECT_EQ(Box(0)[BoxColumn::X], u"34000"_s);
    Drag({{-7000, 600}, {15000, 600}});

    EXPECT_EQ(Box(0)[BoxColumn::X], u"34000"_s);
    EXPECT_EQ(P.Mouse.BoxMiss, 1);
    EXPECT_EQ(P.Tools.MapCursorMode, 0);
    EXPECT_EQ(Picture.Mode, DrawMode::Copy);
}

// An item at no place is neither painted nor hit, and written back as it stands, though it is the only one.
class ItemAtNoPlaceTest : public LoneItemTest, public testing::WithParamInterface<QStringView>
{
};

class BoxAtNoPlaceTest : public ItemAtNoPlaceTest
{
};

TEST_P(BoxAtNoPlaceTest, MovedOrDeleted_StaysAsItStands)
{
    BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}}).Boxes(GetParam());
    GivenTools();
    for (const int tool : {18, 28}) {
        Choose(tool);
        PressAndRelease({700, 650});
        Drag({{700, 650}, {900, 950}, {1200, 1200}});
        EXPECT_EQ(P.Mouse.BoxMiss, 1);
    }
    EXPECT_EQ(P.Map.SBoxes, 0);
    EXPECT_TRUE(IsBlank(Picture));

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(GetParam(), u"", u""));
}

TEST_P(BoxAtNoPlaceTest, MappedInAnEmptyBranch_TheRecordIsMade_AndTheBoxStaysAsItStands)
{
    BranchA.Boxes(GetParam());
    GivenMap();
    const QByteArray before = MapBytes();

    MapNewRecord({700, 650});

    ExpectRecord(u"A001");
    EXPECT_EQ(MapBytes(), before);
}

INSTANTIATE_TEST_SUITE_P(Boxes, BoxAtNoPlaceTest,
                         testing::Values(u"abc,600,255,A001,,", u"abc,600,255,0,,", u",600,255,A009,Gone,",
                                         u"600,abc,255,A001,,", u"600,,255,0,,", u"40000,600,255,A001,,",
                                         u"600,-40000,255,A001,,", u"99999999999,600,255,0,,"));

class TextAtNoPlaceTest : public ItemAtNoPlaceTest
{
};

TEST_P(TextAtNoPlaceTest, MovedOrDeleted_StaysAsItStands)
{
    BranchA.Texts(GetParam());
    GivenTools();
    for (const int tool : {19, 29}) {
        Choose(tool);
        PressAndRelease({700, 650});
        Drag({{700, 650}, {900, 950}, {1200, 1200}});
        EXPECT_EQ(P.Tools.TextMiss, 1);
    }
    EXPECT_EQ(P.Map.STexts, 0);
    EXPECT_TRUE(IsBlank(Picture));

    Leave(Answer::Yes);

    EXPECT_EQ(MapBytes(), BytesOf(u"", u"", GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Texts, TextAtNoPlaceTest,
                         testing::Values(u"here,600,One,Arial,8,0,", u"600,there,One,Courier,10,255,",
                                         u",600,One,Arial,8,0,", u"99999999999,600,One,Arial,8,0,"));

} // namespace
} // namespace lineforge
