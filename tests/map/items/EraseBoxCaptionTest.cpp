#include "map/MapTest.h"
#include "map/items/BoxCaptions.h"
#include "map/items/MapItems.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

constexpr Colour red = Rgb(255, 0, 0);

class EraseBoxCaptionTest : public MapTest
{
protected:
    void GivenRecord(QStringView forename) { GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", forename}})); }

    // The captions without their boxes, so that every pixel that stays behind is one of theirs.
    void GivenCaptionOf(int row)
    {
        DrawBoxCaptions(P, Sheet());
        DrawOwnCaptions(P, Sheet());
        Records(P.Form3).MoveFirst();
        ASSERT_FALSE(IsBlank(Picture)) << row;
    }

    QString FileOf(int row) const { return P.Map.BoxArr[row][BoxColumn::File].Text(); }
};

TEST_F(EraseBoxCaptionTest, Caption_LeavesNoPixelBehind)
{
    GivenRecord(u"Christopher");
    GivenBox(7, {1000, 500}, u"A001");
    GivenCaptionOf(7);

    EraseBoxCaption(P);

    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(EraseBoxCaptionTest, CaptionInItsBox_LeavesTheInsideAsItWas)
{
    GivenRecord(u"Jo Anne");
    GivenBox(7, {1000, 500}, u"A001", red);
    DrawBox(P.Map, Sheet(), 7);
    GivenCaptionOf(7);

    EraseBoxCaption(P);

    EXPECT_EQ(CountPixels(Picture, Black), 0);
    EXPECT_EQ(ColourAt(Picture, {1000, 600}), red);
    EXPECT_EQ(ColourAt(Picture, {1300, 717}), red);
}

TEST_F(EraseBoxCaptionTest, OtherCaptions_Stay)
{
    GivenOpen(
        BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}}).Row({{u"File", u"A002"}, {u"Forename", u"Anne"}}));
    GivenBox(0, {1000, 500}, u"A001");
    GivenBox(1, {3000, 500}, u"A002");
    GivenCaptionOf(0);

    EraseBoxCaption(P);

    PictureByHand expected;
    expected->PrintAt({3100, 500}, u"A002"_s);
    expected->PrintAt({3050, 600}, u"Anne"_s);
    EXPECT_TRUE(SameDrawing(Picture, *expected));
    EXPECT_EQ(FileOf(1), u"A002"_s);
}

TEST_F(EraseBoxCaptionTest, BoxOfTheRecord_IsEmptyAfterwards)
{
    GivenRecord(u"John");
    GivenBox(7, {1000, 500}, u"a001");
    P.Map.BoxArr[7][BoxColumn::Forename] = u"John"_s;

    EraseBoxCaption(P);

    EXPECT_EQ(FileOf(7), u"0"_s);
    EXPECT_EQ(P.Map.BoxArr[7][BoxColumn::Forename].Text(), QString());
    EXPECT_EQ(P.Scratch.IdxA, 7);
    EXPECT_EQ(P.Map.BoxArr[7][BoxColumn::X].Number(), 1000);
}

TEST_F(EraseBoxCaptionTest, RecordInTwoBoxes_FirstAloneIsErased)
{
    GivenRecord(u"John");
    GivenBox(7, {1000, 500}, u"A001");
    GivenBox(8, {3000, 500}, u"A001");
    GivenCaptionOf(7);

    EraseBoxCaption(P);

    EXPECT_EQ(FileOf(7), u"0"_s);
    EXPECT_EQ(FileOf(8), u"A001"_s);
    EXPECT_EQ(CountPixels(Picture, Black, {900, 400, 900, 500}), 0);
    EXPECT_GT(CountPixels(Picture, Black, {2900, 400, 900, 500}), 0);
}

TEST_F(EraseBoxCaptionTest, NullForename_NumberAloneIsErased)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}));
    GivenBox(0, {1000, 500}, u"A001");
    GivenCaptionOf(0);

    EraseBoxCaption(P);

    EXPECT_TRUE(IsBlank(Picture));
    EXPECT_EQ(FileOf(0), u"0"_s);
}

TEST_F(EraseBoxCaptionTest, LastBoxRow_IsLeftAlone)
{
    GivenRecord(u"John");
    GivenBox(99, {1000, 500}, u"A001");
    GivenCaptionOf(99);
    const QImage before = ShownBy(Picture);

    EraseBoxCaption(P);

    EXPECT_EQ(FileOf(99), u"A001"_s);
    EXPECT_TRUE(ShownBy(Picture) == before);
}

TEST_F(EraseBoxCaptionTest, RowBeforeTheLast_IsErased)
{
    GivenRecord(u"John");
    GivenBox(98, {1000, 500}, u"A001");
    GivenCaptionOf(98);

    EraseBoxCaption(P);

    EXPECT_EQ(FileOf(98), u"0"_s);
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(EraseBoxCaptionTest, PenAndFontInHand_DoNotMatter_AndPenEndsBlack)
{
    GivenRecord(u"John");
    GivenBox(0, {1000, 500}, u"A001");
    GivenCaptionOf(0);
    Picture.ForeColor = red;
    Picture.Font = {u"Courier New"_s, 20, true};

    EraseBoxCaption(P);

    EXPECT_TRUE(IsBlank(Picture));
    EXPECT_EQ(Picture.ForeColor, Black);
    EXPECT_EQ(Picture.Font, TextFont{});
}

TEST_F(EraseBoxCaptionTest, OtherBackground_IsPrintedInThatColour)
{
    Picture.BackColor = Rgb(240, 240, 200);
    GivenRecord(u"John");
    GivenBox(0, {1000, 500}, u"A001");
    GivenCaptionOf(0);

    EraseBoxCaption(P);

    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(EraseBoxCaptionTest, RecordOfSiblingShown_SelectedBoxIsErased)
{
    BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Beatrice"}}).Build();
    GivenRecord(u"John");
    GivenBox(7, {1000, 500}, u"B001");
    GivenBox(8, {3000, 500}, u"A001");
    GivenCaptionOf(7);
    P.Mouse.BoxIdx = 7;
    P.Record.sAltName = u"Beatrice"_s;
    P.Branch.UsingAlternate = 1;

    EraseSiblingsBox(P, u"B001"_s);

    PictureByHand expected;
    expected->PrintAt({3100, 500}, u"A001"_s);
    expected->PrintAt({3050, 600}, u"John"_s);
    EXPECT_TRUE(SameDrawing(Picture, *expected));
    EXPECT_EQ(FileOf(7), u"0"_s);
    EXPECT_EQ(FileOf(8), u"A001"_s);
    EXPECT_EQ(Picture.ForeColor, Black);
}

TEST_F(EraseBoxCaptionTest, RecordOfSiblingShown_LastBoxRowIsErasedToo)
{
    BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Bob"}}).Build();
    GivenRecord(u"John");
    GivenBox(99, {1000, 500}, u"B001");
    GivenCaptionOf(99);
    P.Mouse.BoxIdx = 99;
    P.Record.sAltName = u"Bob"_s;
    P.Branch.UsingAlternate = 1;

    EraseSiblingsBox(P, u"B001"_s);

    EXPECT_TRUE(IsBlank(Picture));
    EXPECT_EQ(FileOf(99), u"0"_s);
}

TEST_F(EraseBoxCaptionTest, BoxInRow100_IsLeftAlone)
{
    GivenRecord(u"John");
    GivenBox(100, {1000, 500}, u"A001");
    Picture.Line({1000, 650}, {1600, 650});
    const QImage before = ShownBy(Picture);

    EraseBoxCaption(P);

    EXPECT_EQ(FileOf(100), u"A001"_s);
    EXPECT_TRUE(ShownBy(Picture) == before);
}

TEST_F(EraseBoxCaptionTest, RecordWithoutABox_NothingIsErased)
{
    GivenRecord(u"John");
    GivenBox(0, {1000, 500}, u"A002");
    Picture.Line({1000, 650}, {1600, 650});
    P.Mouse.BoxX = 1000;
    P.Mouse.BoxY = 500;
    const QImage before = ShownBy(Picture);

    EraseBoxCaption(P);

    EXPECT_EQ(FileOf(0), u"A002"_s);
    for (int row = 1; row <= LastMapRow; ++row)
        EXPECT_EQ(FileOf(row), QString()) << row;
    EXPECT_TRUE(ShownBy(Picture) == before);
}

} // namespace
} // namespace lineforge
