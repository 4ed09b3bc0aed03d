#include "gedcom/report/ConversionTest.h"

#include <algorithm>

namespace lineforge
{
namespace
{

struct IndexRule {
    const char* What;
    const char* Source;
    QByteArrayList Individuals;
    QByteArrayList Families;
    int ScanStateAfter = 0;
    int ScanState = GedRecord::Outside;
    bool IsAccepted = true;
    int Error = 0;
};

void PrintTo(const IndexRule& rule, std::ostream* out)
{
    *out << rule.What;
}

const IndexRule indexRules[] = {
    {"records with a zero between them",
     "0 HEAD\n0 @I1@ INDI\n2 DATE 10 May 1901\n0 @F1@ FAM\n",
     {"@I1@"},
     {"@F1@"},
     1},
    {"no zero between them: every second one is missed",
     "0 HEAD\n0 @I1@ INDI\n1 SEX M\n0 @I2@ INDI\n1 SEX F\n0 @I3@ INDI\n",
     {"@I1@", "@I3@"},
     {},
     1},
    {"a zero within the next reference: what is left of it counts",
     "0 HEAD\n0 @I1@ INDI\n0 @I20@ INDI\n0 @I3@ INDI\n",
     {"@I1@", "@"},
     {}},
    {"a record of another kind clears the state",
     "0 HEAD\n0 @I1@ INDI\n0 @N1@ NOTE\n0 @I2@ INDI\n",
     {"@I1@", "@I2@"},
     {},
     1},
    {"a reference met again is stored once",
     "0 HEAD\n0 @I1@ INDI\n1 x0\n0 @i1@ INDI\n1 x0\n0 @I2@ INDI\n",
     {"@I1@", "@I2@"},
     {},
     1},
    {"words ignore case", "0 head\n0 @I1@ Indi\n1 x0\n0 @F1@ fam\n", {"@I1@"}, {"@F1@"}, 1},
    {"more than two words are no record", "0 HEAD\n0 @I1@ INDI \n0 @I2@ INDI x\n", {}, {}, 0},
    {"a zero in the text begins a stretch of its own", "0 HEAD\n1 NOTE x0 A INDI\n", {"A"}, {}, 1},
    {"two blanks: the second counts as a character", "0 HEAD\n0  @I1@ INDI\n", {" @I1@"}, {}, 1},
    {"a blank behind the reference takes the line end in", "0 HEAD\n0 @I1@ \rINDI\n0 @I2@ INDI\n", {"@I2@"}, {}, 1},
    {"what stands before the first zero doesn't count",
     "\xEF\xBB\xBF"
     "anything\n0 HEAD\n0 @I1@ INDI\n",
     {"@I1@"},
     {},
     1},
    {"the zero of a text is the first, too", "note 10\n0 HEAD\n", {}, {}, 0, 0, false},
    {"no head", "0 @I1@ INDI\n0 HEAD\n", {}, {}, 1, 0, false},
    {"a head with a word behind it", "0 HEAD x\n", {}, {}},
    {"a head with two is given up", "0 HEAD x y\n0 HEAD\n", {}, {}, 0},
    {"and what follows is no head", "0 HEAD x y\n0 TRLR\n", {}, {}, 0, 0, false},
    {"a state left over gives the head up", "0 HEAD\n0 @I1@ INDI\n", {}, {}, 1, 1, false},
    {"another one reads nothing", "0 HEAD\n", {}, {}, 6, 6, false},
    {"an empty source", "", {}, {}, 0},
    {"a source without a zero", "1 HEAD\n1 TRLR\n", {}, {}, 0},
    {"a head without a line end isn't looked at", "0 HEAD", {}, {}, 0},
    {"nor is a record", "0 HEAD\n0 @I1@ INDI", {}, {}, 1},
    {"a source that ends in the blank behind a zero runs off",
     "0 HEAD\n0 ",
     {},
     {},
     0,
     0,
     true,
     ErrorNumber::InputPastEnd},
    {"or in the one behind a reference", "0 HEAD\n0 @I1@ ", {}, {}, 1, 0, true, ErrorNumber::InputPastEnd},
};

class GedIndexFileTest : public ConversionTest, public testing::WithParamInterface<IndexRule>
{
protected:
    GedIndexFileTest() { P.Gedcom.sGedLevel = "0"; }
};

template <int Last>
QByteArrayList Stored(const FixedArray<QByteArray, 0, Last>& list, int next)
{
    QByteArrayList stored;
    for (int index = 1; index < next; ++index)
        stored << list[index];
    return stored;
}

TEST_P(GedIndexFileTest, ASource_GivesTheReferencesThatItsZerosLetSee)
{
    const IndexRule& rule = GetParam();
    GivenSource(rule.Source);
    P.Scratch.ScanState = rule.ScanState;
    bool isAccepted = true;
    int error = 0;
    try {
        isAccepted = GedIndexFile(P.Gedcom, P.Scratch.ScanState);
    } catch (const RuntimeError& refused) {
        error = refused.Number;
    }
    EXPECT_EQ(isAccepted, rule.IsAccepted);
    EXPECT_EQ(error, rule.Error);
    EXPECT_EQ(Stored(P.Gedcom.GedIndiList, P.Gedcom.GedIndiNext), rule.Individuals);
    EXPECT_EQ(Stored(P.Gedcom.GedFamList, P.Gedcom.GedFamNext), rule.Families);
    EXPECT_EQ(P.Scratch.ScanState, rule.ScanStateAfter);
}

INSTANTIATE_TEST_SUITE_P(Rules, GedIndexFileTest, testing::ValuesIn(indexRules));

// Individuals or families with a zero behind each.
QByteArray Records(int count, const char* word)
{
    QByteArray lines = "0 HEAD\n";
    for (int number = 1; number <= count; ++number)
        lines += "0 @R" + QByteArray::number(number) + "@ " + word + "\n1 x0\n";
    return lines;
}

struct Limit {
    const char* Word;
    int Most;
};

void PrintTo(const Limit& limit, std::ostream* out)
{
    *out << limit.Word;
}

class GedIndexLimitTest : public ConversionTest, public testing::WithParamInterface<Limit>
{
protected:
    GedIndexLimitTest() { P.Gedcom.sGedLevel = "0"; }
};

TEST_P(GedIndexLimitTest, AsManyAsTheListTakes_AreStored)
{
    GivenSource(Records(GetParam().Most, GetParam().Word));
    EXPECT_TRUE(GedIndexFile(P.Gedcom, P.Scratch.ScanState));
    EXPECT_EQ(std::max<int>(P.Gedcom.GedIndiNext, P.Gedcom.GedFamNext), GetParam().Most + 1);
}

TEST_P(GedIndexLimitTest, OneMore_IsASubscriptError)
{
    GivenSource(Records(GetParam().Most + 1, GetParam().Word));
    EXPECT_EQ(RefusalOf([&] { GedIndexFile(P.Gedcom, P.Scratch.ScanState); }), ErrorNumber::Subscript);
}

INSTANTIATE_TEST_SUITE_P(Lists, GedIndexLimitTest, testing::Values(Limit{"INDI", 100}, Limit{"FAM", 20}),
                         [](const auto& limit) { return std::string(limit.param.Word); });

using GedIndexStateTest = ConversionTest;

TEST_F(GedIndexStateTest, AHead_IsRemembered)
{
    P.Gedcom.sGedLevel = "0";
    GivenSource("0 HEAD\n");
    EXPECT_TRUE(GedIndexFile(P.Gedcom, P.Scratch.ScanState));
    EXPECT_EQ(P.Gedcom.GedHeadState, GedHead::Good);
}

// Nothing empties the value before a run.
TEST_F(GedIndexStateTest, AValueLeftOver_CountsForTheHead)
{
    P.Gedcom.sGedLevel = "0";
    P.Gedcom.sGedValue = "FAM";
    GivenSource("0 HEAD\n");
    EXPECT_TRUE(GedIndexFile(P.Gedcom, P.Scratch.ScanState));
    EXPECT_EQ(P.Gedcom.GedFamList[1], "HEAD");
}

} // namespace
} // namespace lineforge
