#include "platform/base/Number.h"

#include "platform/base/RuntimeError.h"
#include "support/Printing.h"
#include "support/Refusal.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using testing::TestWithParam;
using testing::Values;

struct Reading {
    QStringView Text;
    int Number;
};

void PrintTo(const Reading& reading, std::ostream* out)
{
    PrintTo(reading.Text, out);
}

class ReadNumberTest : public TestWithParam<Reading>
{
};

TEST_P(ReadNumberTest, Text_GivesTheNearestWholeNumber)
{
    EXPECT_EQ(ToInteger(GetParam().Text), GetParam().Number);
    EXPECT_EQ(ToLong(GetParam().Text), GetParam().Number);
}

INSTANTIATE_TEST_SUITE_P(Whole, ReadNumberTest,
                         Values(Reading{u"0", 0}, Reading{u"7", 7}, Reading{u"-7", -7}, Reading{u"+7", 7},
                                Reading{u"007", 7}, Reading{u"32767", 32767}, Reading{u"-32768", -32768},
                                Reading{u"-0", 0}));
INSTANTIATE_TEST_SUITE_P(BlanksAround, ReadNumberTest,
                         Values(Reading{u" 12", 12}, Reading{u"12 ", 12}, Reading{u"  -12\t", -12},
                                Reading{u"\r\n12\r\n", 12}));
INSTANTIATE_TEST_SUITE_P(Fractions, ReadNumberTest,
                         Values(Reading{u"2.4", 2}, Reading{u"2.6", 3}, Reading{u"-2.4", -2}, Reading{u"-2.6", -3},
                                Reading{u".75", 1}, Reading{u"3.", 3}, Reading{u"0.4999999", 0}));
INSTANTIATE_TEST_SUITE_P(HalvesToEven, ReadNumberTest,
                         Values(Reading{u"0.5", 0}, Reading{u"1.5", 2}, Reading{u"2.5", 2}, Reading{u"3.5", 4},
                                Reading{u"-0.5", 0}, Reading{u"-1.5", -2}, Reading{u"-2.5", -2},
                                Reading{u"32766.5", 32766}));
INSTANTIATE_TEST_SUITE_P(Exponents, ReadNumberTest,
                         Values(Reading{u"1e3", 1000}, Reading{u"1E3", 1000}, Reading{u"25e-1", 2},
                                Reading{u"1.2e+2", 120}));
INSTANTIATE_TEST_SUITE_P(AtTheEdgeOfTheRange, ReadNumberTest,
                         Values(Reading{u"32767.4", 32767}, Reading{u"-32768.5", -32768}));

struct Refused {
    QStringView Text;
    int AsInteger;
    int AsLong;
};

void PrintTo(const Refused& refused, std::ostream* out)
{
    PrintTo(refused.Text, out);
}

class RefuseNumberTest : public TestWithParam<Refused>
{
};

TEST_P(RefuseNumberTest, Text_IsRefused)
{
    EXPECT_EQ(RefusalOf([] { ToInteger(GetParam().Text); }), GetParam().AsInteger);
    EXPECT_EQ(RefusalOf([] { ToLong(GetParam().Text); }), GetParam().AsLong);
}

INSTANTIATE_TEST_SUITE_P(NoNumber, RefuseNumberTest,
                         Values(Refused{u"", 13, 13}, Refused{u"   ", 13, 13}, Refused{u"abc", 13, 13},
                                Refused{u"12a", 13, 13}, Refused{u"a12", 13, 13}, Refused{u"1 2", 13, 13},
                                Refused{u"1,5", 13, 13}, Refused{u"1,000", 13, 13}, Refused{u"--1", 13, 13},
                                Refused{u"-", 13, 13}, Refused{u".", 13, 13}, Refused{u"1e", 13, 13},
                                Refused{u"e5", 13, 13}, Refused{u"0x10", 13, 13}, Refused{u"1.2.3", 13, 13},
                                Refused{u"\u0663", 13, 13}));
INSTANTIATE_TEST_SUITE_P(WordsThatLibrariesTakeForNumbers, RefuseNumberTest,
                         Values(Refused{u"nan", 13, 13}, Refused{u"NaN", 13, 13}, Refused{u"inf", 13, 13},
                                Refused{u"-inf", 13, 13}, Refused{u"+INF", 13, 13}, Refused{u"infinity", 13, 13}));
INSTANTIATE_TEST_SUITE_P(OutOfRange, RefuseNumberTest,
                         Values(Refused{u"32768", 6, 0}, Refused{u"-32769", 6, 0}, Refused{u"32767.5", 6, 0},
                                Refused{u"-32768.6", 6, 0}, Refused{u"2147483648", 6, 6}, Refused{u"-2147483649", 6, 6},
                                Refused{u"1e30", 6, 6}, Refused{u"1e400", 6, 6}, Refused{u"-1e400", 6, 6}));

TEST(ToLongTest, WholeRange_IsTaken)
{
    EXPECT_EQ(ToLong(u"2147483647"), 2147483647);
    EXPECT_EQ(ToLong(u"-2147483648"), -2147483647 - 1);
    EXPECT_EQ(ToLong(u"2147483647.4"), 2147483647);
}

TEST(ToNumberTest, Fraction_IsKept)
{
    EXPECT_DOUBLE_EQ(ToNumber(u" -12.25 "), -12.25);
    EXPECT_DOUBLE_EQ(ToNumber(u"1e10"), 1e10);
}

TEST(Integer16Test, ValueInRange_IsKept)
{
    Integer16 number = 32767;
    EXPECT_EQ(number, 32767);
    number = -32768;
    EXPECT_EQ(number, -32768);
    EXPECT_EQ(Integer16(), 0);
}

TEST(Integer16Test, ValueOutOfRange_IsOverflow_AndTheOldValueStays)
{
    Integer16 number = 5;

    EXPECT_EQ(RefusalOf([&] { number = 32768; }), ErrorNumber::Overflow);
    EXPECT_EQ(RefusalOf([&] { number = -32769; }), ErrorNumber::Overflow);
    EXPECT_EQ(RefusalOf([] { Integer16 made(40000); }), ErrorNumber::Overflow);
    EXPECT_EQ(number, 5);
}

TEST(Integer16Test, SumOutOfRange_IsOverflow_AndTheOldValueStays)
{
    Integer16 number = 32000;
    number += 767;
    EXPECT_EQ(number, 32767);

    EXPECT_EQ(RefusalOf([&] { number += 1; }), ErrorNumber::Overflow);
    EXPECT_EQ(number, 32767);

    number = -32000;
    number -= 768;
    EXPECT_EQ(RefusalOf([&] { number -= 1; }), ErrorNumber::Overflow);
    EXPECT_EQ(number, -32768);
}

} // namespace
} // namespace lineforge
