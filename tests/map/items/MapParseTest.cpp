#include "map/items/MapParse.h"

#include "map/MapTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Values;
using testing::WithParamInterface;

const Colour red = 255;

class MapParseTest : public MapTest
{
protected:
    MapParseTest() { GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}})); }

    QString Box(int row, int column) const { return P.Map.BoxArr[row][column].Text(); }
    QString Text(int row, int column) const { return P.Map.TextArr[row][column].Text(); }

    void Parse(const QString& boxes)
    {
        P.Map.sBoxesText = boxes;
        ParseBoxes(P);
    }

    int LinesRefusal(const QString& lines)
    {
        P.Map.sLinesText = lines;
        return RefusalOf([&] { ParseLines(P); });
    }

    void ParseText(const QString& texts)
    {
        P.Map.sTextsText = texts;
        ParseTexts(P);
    }
};

TEST_F(MapParseTest, Boxes_ValuesStayTextAsTheyCameFromTheFile)
{
    Parse(u"1200,0600, 255 ,a001,John,2000,600,255,0,,"_s);

    EXPECT_EQ(Box(0, BoxColumn::X), u"1200"_s);
    EXPECT_EQ(Box(0, BoxColumn::Y), u"0600"_s);
    EXPECT_EQ(Box(0, BoxColumn::Colour), u" 255 "_s);
    EXPECT_EQ(Box(0, BoxColumn::File), u"a001"_s);
    EXPECT_EQ(Box(0, BoxColumn::Forename), u"John"_s);
    EXPECT_EQ(Box(1, BoxColumn::X), u"2000"_s);
    EXPECT_EQ(Box(1, BoxColumn::Forename), QString());
    EXPECT_EQ(P.Map.SBoxes, 1);
}

TEST_F(MapParseTest, Boxes_EmptyValues_AreStoredAsEmptyText)
{
    GivenBox(0, {1200, 600}, u"A001");

    Parse(u",,,,,1,2,3,0,,"_s);

    EXPECT_EQ(Box(0, BoxColumn::X), QString());
    EXPECT_EQ(Box(0, BoxColumn::File), QString());
    EXPECT_EQ(P.Map.SBoxes, 1);
    // A stored empty text isn't the same as nothing stored: it is no number.
    EXPECT_EQ(RefusalOf([&] { P.Map.BoxArr[0][BoxColumn::X].Number(); }), ErrorNumber::TypeMismatch);
}

TEST_F(MapParseTest, Boxes_EveryItemIsDrawn)
{
    Parse(u"1200,600,255,0,,2000,600,16711680,0,,"_s);

    EXPECT_EQ(ColourAt(Picture, {1200, 700}), red);
    EXPECT_EQ(ColourAt(Picture, {2000, 700}), 16711680u);
}

TEST_F(MapParseTest, Boxes_LastItemWithoutItsForename_IsDrawnButNotCounted)
{
    Parse(u"1200,600,255,0,,2000,600,255,0,"_s);

    EXPECT_EQ(P.Map.SBoxes, 0);
    EXPECT_EQ(ColourAt(Picture, {2000, 700}), red);
}

TEST_F(MapParseTest, Boxes_LastItemCutInItsColour_IsNotDrawn)
{
    Parse(u"1200,600,255,0,,2000,600,255,0"_s);

    EXPECT_EQ(P.Map.SBoxes, 0);
    EXPECT_EQ(Box(1, BoxColumn::Colour), u"255"_s);
    EXPECT_EQ(Box(1, BoxColumn::File), QString());
    EXPECT_EQ(ColourAt(Picture, {2000, 700}), White);
}

TEST_F(MapParseTest, Boxes_RowsOfTheArray_GoUpTo200)
{
    Parse(u"1200,600,255,0,,"_s.repeated(201));

    EXPECT_EQ(P.Map.SBoxes, 200);
    EXPECT_EQ(Box(200, BoxColumn::X), u"1200"_s);
}

TEST_F(MapParseTest, Boxes_RowsBeyondTheArray_ArePassedOverWithoutAWord)
{
    Parse(u"1200,600,255,0,,"_s.repeated(201) + u"2000,600,255,0,,"_s.repeated(3));

    EXPECT_EQ(P.Map.SBoxes, 200);
    EXPECT_EQ(Box(200, BoxColumn::X), u"1200"_s);
    EXPECT_EQ(ColourAt(Picture, {2000, 700}), White);
}

TEST_F(MapParseTest, Boxes_ItemThatCannotBeDrawn_DoesNotStopTheWalk)
{
    Parse(u"abc,600,255,0,,1200,600,red,0,,2000,600,255,0,,"_s);

    EXPECT_EQ(P.Map.SBoxes, 2);
    EXPECT_EQ(ColourAt(Picture, {2000, 700}), red);
}

TEST_F(MapParseTest, Boxes_BoxAtImpossiblePlace_CostsNoOtherRecordItsForename)
{
    Parse(u"99999,600,255,A001,,1200,600,255,A001,John,"_s);

    PictureByHand expected;
    expected->ForeColor = red;
    expected->Box({1200, 600, 615, 217});
    expected->ForeColor = Black;
    expected->PrintAt({1300, 600}, u"A001"_s);
    expected->PrintAt({1250, 700}, u"John"_s);
    EXPECT_TRUE(SameDrawing(Picture, *expected));
}

TEST_F(MapParseTest, Boxes_FreeRow_IsStoredButNotPainted)
{
    Parse(u"0,600,255,0,,"_s);

    EXPECT_EQ(P.Map.SBoxes, 0);
    EXPECT_EQ(Box(0, BoxColumn::Y), u"600"_s);
    EXPECT_TRUE(IsBlank(Picture));
}

struct ListLength {
    QString List;
    int Rows; // -100: counts as empty, the number before stays
};

void PrintTo(const ListLength& list, std::ostream* out)
{
    *out << '"' << qUtf8Printable(list.List) << '"';
}

class ShortBoxesTest : public MapParseTest, public WithParamInterface<ListLength>
{
};

TEST_P(ShortBoxesTest, ListOfFewerThanNineCharacters_CountsAsEmptyWithoutAWord)
{
    P.Map.SBoxes = -100;
    GivenBox(0, {700, 800}, u"0");

    Parse(GetParam().List);

    EXPECT_EQ(P.Map.SBoxes, GetParam().Rows);
    EXPECT_EQ(Box(0, BoxColumn::X) == u"700"_s, GetParam().Rows == -100);
}

INSTANTIATE_TEST_SUITE_P(Lengths, ShortBoxesTest,
                         Values(ListLength{{}, -100}, ListLength{u"0,0,0,"_s, -100},
                                ListLength{u"1,2,3,0,"_s, -100}, // 8 characters
                                ListLength{u"1,2,3,0,,"_s, 0},   // 9
                                ListLength{u"10,2,3,0,"_s, -1},  // 9, but no item complete
                                ListLength{u"1,2,3,0,,,"_s, 0}));

TEST_F(MapParseTest, Boxes_EmptyList_LeavesTheDisplayAndTheCurrentRecord)
{
    Records(P.Form3).MoveNext();
    P.Record.SavedBookmark = {};
    GivenBox(0, {1200, 600}, u"A001");

    Parse(u"0,0,0,"_s);

    EXPECT_TRUE(IsBlank(Picture));
    EXPECT_TRUE(Records(P.Form3).Eof());
    EXPECT_FALSE(P.Record.SavedBookmark);
}

TEST_F(MapParseTest, Boxes_MappedBox_GetsNumberAndForename)
{
    Parse(u"1200,600,255,a001,,"_s);

    PictureByHand expected;
    expected->ForeColor = red;
    expected->Box({1200, 600, 615, 217});
    expected->ForeColor = Black;
    // The number as the box has it, and over it as the record has it.
    expected->PrintAt({1300, 600}, u"a001"_s);
    expected->PrintAt({1300, 600}, u"A001"_s);
    expected->PrintAt({1250, 700}, u"John"_s);
    EXPECT_TRUE(SameDrawing(Picture, *expected));
}

TEST_F(MapParseTest, Boxes_CurrentRecord_IsTheSameAfterwards)
{
    BranchBuilder branch(Home, u'C');
    GivenOpen(branch.Row({{u"File", u"C001"}}).Row({{u"File", u"C002"}}).Row({{u"File", u"C003"}}));
    Records(P.Form3).MoveNext();
    const Bookmark second = Records(P.Form3).GetBookmark();

    Parse(u"1200,600,255,C001,,2000,600,255,C003,,"_s);

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"C002"_s);
    EXPECT_EQ(P.Record.SavedBookmark, second);
}

TEST_F(MapParseTest, Boxes_EmptyTable_IsQuiet)
{
    GivenOpen(BranchB);
    // Left behind by the branch before.
    P.Record.SavedBookmark = RowMark{1};

    Parse(u"1200,600,255,B001,,"_s);

    PictureByHand expected;
    expected->ForeColor = red;
    expected->Box({1200, 600, 615, 217});
    expected->ForeColor = Black;
    expected->PrintAt({1300, 600}, u"B001"_s);
    EXPECT_TRUE(SameDrawing(Picture, *expected));
    EXPECT_TRUE(Records(P.Form3).Eof());
    EXPECT_TRUE(Records(P.Form3).Bof());
}

TEST_F(MapParseTest, Lines_ValuesBecomeWholeNumbers)
{
    EXPECT_EQ(LinesRefusal(u"1507, 817 ,-2307,817.5,16777215,1,2,3,4,5,"_s), 0);

    const auto& line = P.Map.LineArr[0];
    EXPECT_EQ(line[LineColumn::X1], 1507);
    EXPECT_EQ(line[LineColumn::Y1], 817);
    EXPECT_EQ(line[LineColumn::X2], -2307);
    EXPECT_EQ(line[LineColumn::Y2], 818); // halves go to the even number
    EXPECT_EQ(line[LineColumn::Colour], 16777215);
    EXPECT_EQ(P.Map.SLines, 1);
}

TEST_F(MapParseTest, Lines_EveryItemIsDrawn)
{
    EXPECT_EQ(LinesRefusal(u"1000,500,2000,500,255,1000,900,2000,900,16711680,"_s), 0);

    EXPECT_EQ(ColourAt(Picture, {1500, 500}), red);
    EXPECT_EQ(ColourAt(Picture, {1500, 900}), 16711680u);
}

TEST_F(MapParseTest, Lines_PenIsBlackFirst)
{
    Picture.ForeColor = red;

    EXPECT_EQ(LinesRefusal(u"1000,500,2000,500,255,"_s), 0);

    EXPECT_EQ(Picture.ForeColor, Black);
}

TEST_F(MapParseTest, Lines_LastItemIncomplete_IsNeitherDrawnNorCounted)
{
    EXPECT_EQ(LinesRefusal(u"1000,500,2000,500,255,1000,900,2000,900,255"_s), 0);

    EXPECT_EQ(P.Map.SLines, 0);
    EXPECT_EQ(ColourAt(Picture, {1500, 900}), White);
}

class ShortLinesTest : public MapParseTest, public WithParamInterface<ListLength>
{
};

TEST_P(ShortLinesTest, ListOfFewerThanNineCharacters_CountsAsEmptyWithoutAWord)
{
    P.Map.SLines = -100;

    EXPECT_EQ(LinesRefusal(GetParam().List), 0);

    EXPECT_EQ(P.Map.SLines, GetParam().Rows);
    EXPECT_EQ(P.Map.LineArr[0][LineColumn::X1] == 0, GetParam().Rows == -100);
}

INSTANTIATE_TEST_SUITE_P(Lengths, ShortLinesTest,
                         Values(ListLength{{}, -100}, ListLength{u"0,0,0,"_s, -100},
                                ListLength{u"a,b,c,d,"_s, -100}, // 8 characters, not even looked at
                                ListLength{u"1,2,3,40,"_s, -1},  // 9, but no item complete
                                ListLength{u"1,2,3,4,5,"_s, 0}));

struct BadLines {
    QString List;
    int Error;
};

void PrintTo(const BadLines& lines, std::ostream* out)
{
    *out << '"' << qUtf8Printable(lines.List) << '"';
}

class BadLinesTest : public MapParseTest, public WithParamInterface<BadLines>
{
};

TEST_P(BadLinesTest, ValueThatIsNoWholeNumber_IsAFailure_AndTheCountStays)
{
    P.Map.SLines = 7;

    EXPECT_EQ(LinesRefusal(u"1000,500,2000,500,255,"_s + GetParam().List), GetParam().Error);

    EXPECT_EQ(P.Map.SLines, 7);
    EXPECT_EQ(ColourAt(Picture, {1500, 500}), red);
}

INSTANTIATE_TEST_SUITE_P(Values, BadLinesTest,
                         Values(BadLines{u"abc,"_s, ErrorNumber::TypeMismatch},
                                BadLines{u"1,,"_s, ErrorNumber::TypeMismatch},
                                BadLines{u"1,2,3,4,red,"_s, ErrorNumber::TypeMismatch},
                                BadLines{u"3000000000,"_s, ErrorNumber::Overflow},
                                BadLines{u"1,2,3,-2147483649,"_s, ErrorNumber::Overflow}));

TEST_F(MapParseTest, Lines_RowsOfTheArray_GoUpTo200)
{
    EXPECT_EQ(LinesRefusal(u"1000,500,2000,500,255,"_s.repeated(201)), 0);

    EXPECT_EQ(P.Map.SLines, 200);
}

TEST_F(MapParseTest, Lines_RowBeyondTheArray_IsASubscriptFailure)
{
    EXPECT_EQ(LinesRefusal(u"1000,500,2000,500,255,"_s.repeated(201) + u"1,"), ErrorNumber::Subscript);

    EXPECT_EQ(P.Map.LineArr[200][LineColumn::X2], 2000);
}

TEST_F(MapParseTest, Texts_ValuesStayTextAsTheyCameFromTheFile)
{
    ParseText(u"300,0150,The Smiths,Arial,8.25,0,400,250,,Courier New,12,255,"_s);

    EXPECT_EQ(Text(0, TextColumn::Y), u"0150"_s);
    EXPECT_EQ(Text(0, TextColumn::Text), u"The Smiths"_s);
    EXPECT_EQ(Text(0, TextColumn::FontName), u"Arial"_s);
    EXPECT_EQ(Text(0, TextColumn::FontSize), u"8.25"_s);
    EXPECT_EQ(Text(1, TextColumn::Text), QString());
    EXPECT_EQ(Text(1, TextColumn::Colour), u"255"_s);
    EXPECT_EQ(P.Map.STexts, 1);
}

TEST_F(MapParseTest, Texts_EveryItemIsDrawn_TheLastAsWell)
{
    ParseText(u"300,150,First,Arial,8,255,300,900,Last,Arial,8,16711680,"_s);

    PictureByHand expected;
    expected->ForeColor = red;
    expected->PrintAt({300, 150}, u"First"_s);
    expected->ForeColor = 16711680;
    expected->PrintAt({300, 900}, u"Last"_s);
    EXPECT_TRUE(SameDrawing(Picture, *expected));
}

TEST_F(MapParseTest, Texts_LastItemIncomplete_IsNeitherDrawnNorCounted)
{
    ParseText(u"300,150,First,Arial,8,255,300,900,Last,Arial,8,255"_s);

    EXPECT_EQ(P.Map.STexts, 0);
    EXPECT_EQ(CountPixels(Picture, red, {0, 800, 8415, 11000}), 0);
}

TEST_F(MapParseTest, Texts_RowsOfTheArray_GoUpTo200)
{
    ParseText(u"300,150,A,Arial,8,0,"_s.repeated(201));

    EXPECT_EQ(P.Map.STexts, 200);
    EXPECT_EQ(Text(200, TextColumn::Text), u"A"_s);
}

TEST_F(MapParseTest, Texts_RowsBeyondTheArray_ArePassedOverWithoutAWord)
{
    ParseText(u"300,150,A,Arial,8,0,"_s.repeated(201) + u"300,900,B,Arial,8,255,");

    EXPECT_EQ(P.Map.STexts, 200);
    EXPECT_EQ(Text(200, TextColumn::Text), u"A"_s);
    EXPECT_EQ(CountPixels(Picture, red), 0);
}

TEST_F(MapParseTest, Texts_ItemThatCannotBeDrawn_DoesNotStopTheWalk)
{
    ParseText(u"x,150,A,Arial,8,0,300,900,B,Arial,8,255,"_s);

    EXPECT_EQ(P.Map.STexts, 1);
    EXPECT_GT(CountPixels(Picture, red, {300, 900, 300, 300}), 0);
}

TEST_F(MapParseTest, Texts_CommaInAText_ShiftsAllLaterValuesByOne)
{
    ParseText(u"300,150,Smith, John,Arial,8,0,400,250,House,Arial,8,255,"_s);

    EXPECT_EQ(Text(0, TextColumn::Text), u"Smith"_s);
    EXPECT_EQ(Text(0, TextColumn::FontName), u" John"_s);
    EXPECT_EQ(Text(0, TextColumn::Colour), u"8"_s);
    EXPECT_EQ(Text(1, TextColumn::X), u"0"_s);
    EXPECT_EQ(Text(1, TextColumn::Y), u"400"_s);
    EXPECT_EQ(Text(1, TextColumn::Text), u"250"_s);
    EXPECT_EQ(Text(1, TextColumn::FontName), u"House"_s);
    EXPECT_EQ(Text(2, TextColumn::X), u"255"_s);
    EXPECT_EQ(P.Map.STexts, 1);
}

TEST_F(MapParseTest, Texts_SpoiltSizeAndColour_PrintInWhatIsInForce)
{
    Picture.Font = {u"Arial"_s, 14};
    Picture.ForeColor = red;

    ParseText(u"300,150,Smith,Arial,large,crimson,"_s);

    EXPECT_GT(CountPixels(Picture, red, {300, 150, 1200, 400}), 0);
}

TEST_F(MapParseTest, Texts_FontIsArial8NotBoldAfterwards)
{
    Picture.Font = {u"Courier New"_s, 20, true};

    ParseText(u"300,150,A,Arial,14,0,"_s);

    EXPECT_EQ(Picture.Font, TextFont{});
}

class ShortTextsTest : public MapParseTest, public WithParamInterface<ListLength>
{
};

TEST_P(ShortTextsTest, ListOfFewerThanNineCharacters_MeansNoText)
{
    P.Map.STexts = 100;

    ParseText(GetParam().List);

    EXPECT_EQ(P.Map.STexts, GetParam().Rows);
    EXPECT_EQ(Text(0, TextColumn::X).isEmpty(), GetParam().List.size() < 9);
}

INSTANTIATE_TEST_SUITE_P(Lengths, ShortTextsTest,
                         Values(ListLength{{}, -1}, ListLength{u"0,0,0,"_s, -1}, ListLength{u"1,2,A,,,"_s, -1},
                                ListLength{u"1,2,A,,8,"_s, -1}, // 9 characters, but no item complete
                                ListLength{u"1,2,A,,8,0,"_s, 0}));

TEST_F(MapParseTest, ListOfEightCharacters_IsNotEmptyToTheReader_SoNobodyIsTold)
{
    Home.WriteFile(u"LfgDat_A/LfgDat_A.cfg", MapFileBytes(u"LfgDat_A", u"1,2,3,0,", u"1,2,3,4,", u"1,2,A,,8"));
    P.Map.SBoxes = 5;
    P.Map.SLines = 6;

    OpenMap();

    EXPECT_EQ(P.Map.SBoxes, 5);
    EXPECT_EQ(P.Map.SLines, 6);
    EXPECT_EQ(P.Map.STexts, -1);
    EXPECT_TRUE(IsBlank(Picture));
}

} // namespace
} // namespace lineforge
