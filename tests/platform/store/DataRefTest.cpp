#include "platform/store/DataRef.h"

#include <gtest/gtest.h>
#include <ostream>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

struct Typed {
    QStringView Text;
    QStringView Letter;
    QStringView Digits;
    bool IsWhole;
};

void PrintTo(const Typed& typed, std::ostream* out)
{
    *out << '"' << typed.Text.toString().toStdString() << '"';
}

class TypedDataRefTest : public testing::TestWithParam<Typed>
{
};

TEST_P(TypedDataRefTest, Text_FallsIntoLetterAndDigits)
{
    const DataRef number(GetParam().Text.toString());
    EXPECT_EQ(number.Text(), GetParam().Text);
    EXPECT_EQ(number.Letter(), GetParam().Letter);
    EXPECT_EQ(number.Digits(), GetParam().Digits);
    EXPECT_EQ(number.IsWhole(), GetParam().IsWhole);
}

INSTANTIATE_TEST_SUITE_P(Texts, TypedDataRefTest,
                         testing::Values(Typed{u"A001", u"A", u"001", true}, Typed{u"z999", u"z", u"999", true},
                                         Typed{u"", u"", u"", false}, Typed{u"0", u"0", u"0", false},
                                         Typed{u"A", u"A", u"A", false}, Typed{u"A01", u"A", u"A01", false},
                                         Typed{u"A0011", u"A", u"011", false}, Typed{u"1001", u"1", u"001", false},
                                         Typed{u"A0x1", u"A", u"0x1", false}, Typed{u"Ä001", u"Ä", u"001", false},
                                         Typed{u"A00١", u"A", u"00١", false}));

TEST(DataRefTest, NumberOfALetter_HasThreeDigits_OrAsManyAsItTakes)
{
    EXPECT_EQ(DataRef(u"A", 7).Text(), u"A007"_s);
    EXPECT_EQ(DataRef(u"Z", 99).Text(), u"Z099"_s);
    EXPECT_EQ(DataRef(u"b", 1000).Text(), u"b1000"_s);
    EXPECT_EQ(DataRef(u"", 1).Text(), u"001"_s);
}

TEST(DataRefTest, IsOfALetter_InEitherCase)
{
    EXPECT_TRUE(DataRef(u"A001"_s).IsOf(u"a"));
    EXPECT_TRUE(DataRef(u"a001"_s).IsOf(u"A"));
    EXPECT_FALSE(DataRef(u"A001"_s).IsOf(u"B"));
    EXPECT_FALSE(DataRef(QString()).IsOf(u"A"));
    EXPECT_TRUE(DataRef(QString()).IsOf(u""));
}

} // namespace
} // namespace lineforge
