#include "monkey/Chance.h"

#include <gmock/gmock.h>
#include <map>

namespace lineforge::monkey
{
namespace
{

std::vector<int> FirstOf(std::uint64_t seed)
{
    Chance chance(seed);
    return {chance.Below(1000), chance.Below(1000), chance.Below(1000), chance.Below(1000)};
}

// The seeds of sessions that once found something must go on finding it, on every machine.
TEST(ChanceTest, Seed_DecidesTheSameForEver)
{
    EXPECT_EQ(FirstOf(1), (std::vector{465, 519, 590, 235}));
    EXPECT_NE(FirstOf(1), FirstOf(2));
}

TEST(ChanceTest, AllThatIsToChooseFrom_IsChosen)
{
    Chance chance(7);
    std::map<int, int> drawn;
    for (int draw = 0; draw < 3000; ++draw)
        ++drawn[chance.Between(-1, 1)];
    ASSERT_EQ(drawn.size(), 3U);
    for (const auto& [number, times] : drawn)
        EXPECT_GT(times, 900) << number;
}

TEST(ChanceTest, WhatHasTwiceTheWeight_IsChosenTwiceAsOften_AndWhatHasNoneNever)
{
    struct Thing {
        int Weight;
        char Name;
    };
    constexpr Thing things[] = {{0, 'a'}, {10, 'b'}, {20, 'c'}, {0, 'd'}};
    Chance chance(7);
    std::map<char, int> drawn;
    for (int draw = 0; draw < 3000; ++draw)
        ++drawn[chance.OneByWeight(things).Name];
    EXPECT_NEAR(drawn['b'], 1000, 100);
    EXPECT_EQ(drawn['b'] + drawn['c'], 3000);
}

TEST(ChanceTest, TypedTexts_AreSensibleAndOdd)
{
    Chance chance(7);
    QStringList texts;
    for (int draw = 0; draw < 1000; ++draw)
        texts += TypedText(chance);
    for (const char16_t* expected : {u"Mary", u"A001", u"*", u"Zoë 🌳 שלום", u""})
        EXPECT_TRUE(texts.contains(QString::fromUtf16(expected))) << QString::fromUtf16(expected).toStdString();
}

} // namespace
} // namespace lineforge::monkey
