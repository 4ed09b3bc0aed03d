#include "map/items/MapFile.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::TestWithParam;
using testing::Values;

// The lists of the map file, made from the arrays.
class MapListsTest : public testing::Test
{
protected:
    void GivenBox(int row, int x)
    {
        map.BoxArr[row][BoxColumn::X] = x;
        map.BoxArr[row][BoxColumn::Y] = row;
        map.BoxArr[row][BoxColumn::Colour] = 255;
        map.BoxArr[row][BoxColumn::File] = u"A001"_s;
        map.BoxArr[row][BoxColumn::Forename] = u"John"_s;
    }

    void GivenLine(int row, int x)
    {
        for (int column = 0; column < LineColumn::Count; ++column)
            map.LineArr[row][column] = column;
        map.LineArr[row][LineColumn::X1] = x;
    }

    void GivenText(int row, int x)
    {
        map.TextArr[row][TextColumn::X] = x;
        map.TextArr[row][TextColumn::Y] = row;
        map.TextArr[row][TextColumn::Text] = u"The Smiths"_s;
        map.TextArr[row][TextColumn::FontName] = u"Arial"_s;
        map.TextArr[row][TextColumn::FontSize] = u"8.25"_s;
        map.TextArr[row][TextColumn::Colour] = -1;
        map.TextArr[row][6] = u"never used"_s;
    }

    MapState map;
};

TEST_F(MapListsTest, EmptyMap_GivesEmptyLists)
{
    EXPECT_EQ(ListOfBoxes(map), QString());
    EXPECT_EQ(ListOfLines(map), QString());
    EXPECT_EQ(ListOfTexts(map), QString());
}

TEST_F(MapListsTest, Boxes_GiveFiveValuesEach_CommaAfterEvery)
{
    GivenBox(0, 1200);
    GivenBox(1, 2000);

    EXPECT_EQ(ListOfBoxes(map), u"1200,0,255,A001,John,2000,1,255,A001,John,"_s);
}

TEST_F(MapListsTest, Boxes_CellNeverStored_IsAnEmptyValue)
{
    map.BoxArr[0][BoxColumn::X] = 1200;

    EXPECT_EQ(ListOfBoxes(map), u"1200,,,,,"_s);
}

TEST_F(MapListsTest, Boxes_FreeRowInTheMiddle_LeavesNoGap)
{
    GivenBox(0, 1200);
    GivenBox(1, 0);
    GivenBox(2, 2000);

    EXPECT_EQ(ListOfBoxes(map), u"1200,0,255,A001,John,2000,2,255,A001,John,"_s);
}

TEST_F(MapListsTest, Boxes_BeyondTheHundredth_StayOut)
{
    GivenBox(99, 1200);
    GivenBox(100, 1300);
    GivenBox(200, 1400);

    EXPECT_EQ(ListOfBoxes(map), u"1200,99,255,A001,John,"_s);
}

TEST_F(MapListsTest, Boxes_CountOfBoxesDoesNotMatter)
{
    GivenBox(5, 1200);
    map.SBoxes = 0;

    EXPECT_EQ(ListOfBoxes(map), u"1200,5,255,A001,John,"_s);
}

struct Position {
    QString Text;
    bool IsFree;
};

void PrintTo(const Position& position, std::ostream* out)
{
    *out << '"' << qUtf8Printable(position.Text) << '"';
}

class FreePositionTest : public TestWithParam<Position>
{
};

TEST_P(FreePositionTest, Position_IsComparedAsANumber)
{
    MapState map;
    map.BoxArr[0][BoxColumn::X] = GetParam().Text;
    map.TextArr[0][TextColumn::X] = GetParam().Text;

    EXPECT_EQ(ListOfBoxes(map).isEmpty(), GetParam().IsFree);
    EXPECT_EQ(ListOfTexts(map).isEmpty(), GetParam().IsFree);
}

INSTANTIATE_TEST_SUITE_P(Cells, FreePositionTest,
                         Values(Position{u"0"_s, true}, Position{u"00"_s, true}, Position{u" 0 "_s, true},
                                Position{u"0.0"_s, true}, Position{u"-0"_s, true}, Position{u"0.4"_s, false},
                                Position{u"-1"_s, false}, Position{u"12"_s, false}, Position{u" 12"_s, false}));

class WordAsPositionTest : public TestWithParam<QString>
{
};

TEST_P(WordAsPositionTest, TextThatIsNoNumber_IsNotFree_AndGoesOutAsItIs)
{
    MapState map;
    map.BoxArr[0][BoxColumn::X] = GetParam();
    map.TextArr[0][TextColumn::X] = GetParam();

    EXPECT_EQ(ListOfBoxes(map), QString(GetParam() + u",,,,,"));
    EXPECT_EQ(ListOfTexts(map), QString(GetParam() + u",,,,,,"));
}

INSTANTIATE_TEST_SUITE_P(Cells, WordAsPositionTest, Values(QString(), u" "_s, u"abc"_s, u"12x"_s, u"nan"_s, u"inf"_s));

TEST_F(MapListsTest, Lines_GiveWholeNumbersInDecimal)
{
    map.LineArr[0][LineColumn::X1] = -5;
    map.LineArr[0][LineColumn::Y1] = 2147483647;
    map.LineArr[0][LineColumn::Colour] = 16777215;

    EXPECT_EQ(ListOfLines(map), u"-5,2147483647,0,0,16777215,"_s);
}

TEST_F(MapListsTest, Lines_FreeRow_LeavesNoGap)
{
    GivenLine(0, 7);
    GivenLine(1, 0);
    GivenLine(2, 8);

    EXPECT_EQ(ListOfLines(map), u"7,1,2,3,4,8,1,2,3,4,"_s);
}

TEST_F(MapListsTest, Lines_TheLastRow_IsNeverWritten)
{
    GivenLine(199, 7);
    GivenLine(200, 8);
    map.SLines = 200;

    EXPECT_EQ(ListOfLines(map), u"7,1,2,3,4,"_s);
}

TEST_F(MapListsTest, Texts_GiveSixValuesEach)
{
    GivenText(0, 300);
    map.STexts = 0;

    EXPECT_EQ(ListOfTexts(map), u"300,0,The Smiths,Arial,8.25,-1,"_s);
}

TEST_F(MapListsTest, Texts_FreeRow_LeavesNoGap)
{
    GivenText(0, 300);
    GivenText(1, 0);
    GivenText(2, 400);
    map.STexts = 2;

    EXPECT_EQ(ListOfTexts(map), u"300,0,The Smiths,Arial,8.25,-1,400,2,The Smiths,Arial,8.25,-1,"_s);
}

TEST_F(MapListsTest, Texts_BeyondTheirCount_StayOut)
{
    GivenText(0, 300);
    GivenText(1, 400);
    map.STexts = 0;

    EXPECT_EQ(ListOfTexts(map), u"300,0,The Smiths,Arial,8.25,-1,"_s);
}

TEST_F(MapListsTest, Texts_NoneAtAll_GiveAnEmptyList)
{
    GivenText(0, 300);
    map.STexts = -1;

    EXPECT_EQ(ListOfTexts(map), QString());
}

TEST_F(MapListsTest, Texts_LastRowOfTheArray_IsWritten)
{
    GivenText(200, 300);
    map.STexts = 200;

    EXPECT_EQ(ListOfTexts(map), u"300,200,The Smiths,Arial,8.25,-1,"_s);
}

} // namespace
} // namespace lineforge
