#include "program/state/MapState.h"

#include "support/Printing.h"
#include "support/Refusal.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

struct CellCase {
    const char* What;
    Cell Value;
    QStringView Text;
    int Number = 0;
    double Fraction = 0;
    int Refusal = 0; // of the number; a fraction is refused only where it is no number at all
};

void PrintTo(const CellCase& value, std::ostream* out)
{
    *out << value.What;
}

class CellTest : public testing::TestWithParam<CellCase>
{
};

TEST_P(CellTest, StoredValue_ReadsAsTextAndAsNumber)
{
    const CellCase& expected = GetParam();

    EXPECT_EQ(expected.Value.Text(), expected.Text);
    int number = 0;
    EXPECT_EQ(RefusalOf([&] { number = expected.Value.Number(); }), expected.Refusal);
    EXPECT_EQ(number, expected.Number);

    const bool isNoNumber = expected.Refusal == ErrorNumber::TypeMismatch;
    double fraction = 0;
    EXPECT_EQ(RefusalOf([&] { fraction = expected.Value.Fraction(); }), isNoNumber ? expected.Refusal : 0);
    EXPECT_EQ(fraction, expected.Fraction);

    EXPECT_EQ(expected.Value.IsZero(), !isNoNumber && expected.Fraction == 0);
    EXPECT_EQ(expected.Value.IsNumber(), expected.Refusal == 0);
    EXPECT_EQ(expected.Value.NumberOr(77), expected.Refusal == 0 ? expected.Number : 77);
}

INSTANTIATE_TEST_SUITE_P(
    Values, CellTest,
    testing::Values(CellCase{"never stored", Cell(), u""}, CellCase{"a number", Cell(1200), u"1200", 1200, 1200},
                    CellCase{"zero", Cell(0), u"0"}, CellCase{"a text of digits", Cell(u"1200"_s), u"1200", 1200, 1200},
                    CellCase{"a negative text", Cell(u"-5"_s), u"-5", -5, -5},
                    CellCase{"a text of zeros", Cell(u"000"_s), u"000"},
                    CellCase{"blanks around it", Cell(u" 7 "_s), u" 7 ", 7, 7},
                    CellCase{"a fraction", Cell(u"8.25"_s), u"8.25", 8, 8.25},
                    CellCase{"a fraction below one", Cell(u"0.25"_s), u"0.25", 0, 0.25},
                    CellCase{"a record", Cell(u"A001"_s), u"A001", 0, 0, ErrorNumber::TypeMismatch},
                    CellCase{"an empty text stored", Cell(u""_s), u"", 0, 0, ErrorNumber::TypeMismatch},
                    CellCase{"beyond 32 bits", Cell(u"3000000000"_s), u"3000000000", 0, 3e9, ErrorNumber::Overflow}));

TEST(MapState, ErasedArraysAndLists_AreEmpty_AndWithoutOwner_ButKeepTheCounts)
{
    MapState map;
    map.BoxArr[200][4] = u"John"_s;
    map.LineArr[200][4] = 255;
    map.TextArr[200][6] = u"The Smiths"_s;
    map.LineChain[100] = 7;
    map.SBoxes = 3;
    map.SLines = 4;
    map.STexts = 5;
    map.sBoxesText = map.sLinesText = map.sTextsText = u"1,2,3,"_s;
    map.Owner = u"LfgDat_A"_s;

    map.EraseArrays();
    map.EraseLists();

    EXPECT_EQ(map.BoxArr[200][4].Text(), QString());
    EXPECT_EQ(map.LineArr[200][4], 0);
    EXPECT_EQ(map.TextArr[200][6].Text(), QString());
    EXPECT_EQ(map.LineChain[100], 0);
    EXPECT_EQ(map.sBoxesText + map.sLinesText + map.sTextsText + map.Owner, QString());
    EXPECT_EQ(map.SBoxes, 3);
    EXPECT_EQ(map.SLines, 4);
    EXPECT_EQ(map.STexts, 5);
}

TEST(MapState, ErasedCell_CountsAsZero_WhateverStoodInIt)
{
    MapState map;
    map.BoxArr[0][BoxColumn::X] = u"no number"_s;

    map.EraseArrays();

    EXPECT_TRUE(map.BoxArr[0][BoxColumn::X].IsZero());
}

TEST(MapState, RowOrColumnBeyondAnArray_IsSubscriptOutOfRange)
{
    MapState map;

    EXPECT_EQ(RefusalOf([&] { map.BoxArr[201][0] = 1; }), ErrorNumber::Subscript);
    EXPECT_EQ(RefusalOf([&] { map.BoxArr[0][5] = 1; }), ErrorNumber::Subscript);
    EXPECT_EQ(RefusalOf([&] { map.LineArr[201][0] = 1; }), ErrorNumber::Subscript);
    EXPECT_EQ(RefusalOf([&] { map.LineArr[0][5] = 1; }), ErrorNumber::Subscript);
    EXPECT_EQ(RefusalOf([&] { map.TextArr[201][0] = 1; }), ErrorNumber::Subscript);
    EXPECT_EQ(RefusalOf([&] { map.TextArr[0][7] = 1; }), ErrorNumber::Subscript);
    EXPECT_EQ(RefusalOf([&] { map.BoxArr[-1][0] = 1; }), ErrorNumber::Subscript);
}

} // namespace
} // namespace lineforge
