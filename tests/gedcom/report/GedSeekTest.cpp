#include "gedcom/report/ConversionTest.h"

namespace lineforge
{
namespace
{

struct SeekRule {
    const char* What;
    const char* Source;
    const char* SeekFor;
    int ScanState;
    // What is left.
    const char* Line;
    const char* Tag;
    const char* Value;
    const char* Rest;
    int StateAfter;
    const char* Report = "";
    int Error = 0;
};

void PrintTo(const SeekRule& rule, std::ostream* out)
{
    *out << rule.What;
}

// The tag that was found before.
constexpr char before[] = "before";
constexpr int pastEnd = ErrorNumber::InputPastEnd;

const SeekRule seekRules[] = {
    {"the line with the tag", "0 HEAD\n1 CHAR ANSI x\n", "CHAR", 0, "1 CHAR ANSI x", "CHAR", "ANSI ", "x", 1},
    {"case ignored", "1 nAmE x\n", "NaMe", 0, "1 nAmE x", "nAmE", "x", "", 1},
    {"bytes beyond ASCII are only like themselves", "1 N\xC4M x\n1 N\xE4M y\n", "N\xE4M", 0, "1 N\xE4M y", "N\xE4M",
     "y", "", 1},
    {"a record by its reference", "0 HEAD\n0 @I1@ INDI\n", "@I1@", 0, "0 @I1@ INDI", "@I1@", "INDI", "", 1},
    {"at any level", "0 HEAD\n3 @I1@ INDI\n", "@I1@", 0, "3 @I1@ INDI", "@I1@", "INDI", "", 1},
    {"a whole tag only", "1 NAMES x\n1 NAM y\n1 NAME z\n", "NAME", 0, "1 NAME z", "NAME", "z", "", 1},
    {"an empty tag", "1 NAME x\n1  NAME y\n", "", 0, "1  NAME y", "", "NAME ", "y", 1},
    {"the record ends before it", "1 NAME x\n0 @I2@ INDI\n1 SEX M\n", "SEX", 1, "0 @I2@ INDI", "@I2@", "INDI", "", 1},
    {"outside a record it goes on", "1 NAME x\n0 @I2@ INDI\n1 SEX M\n", "SEX", 0, "1 SEX M", "SEX", "M", "", 1},
    {"another state is outside, too", "0 @I2@ INDI\n1 SEX M\n", "SEX", 6, "1 SEX M", "SEX", "M", "", 1},
    {"a record that is what is sought", "0 SEX M\n", "SEX", 1, "0 SEX M", "SEX", "M", "", 1},
    {"a child's reference leaves the record", "1 CHIL @I3@\n", "CHIL", 1, "1 CHIL @I3@", "CHIL", "@I3@", "", 0},
    {"a wife's does", "1 WIFE @I2@\n", "WIFE", 1, "1 WIFE @I2@", "WIFE", "@I2@", "", 0},
    {"a husband's does", "1 husb @I1@\n", "HUSB", 1, "1 husb @I1@", "husb", "@I1@", "", 0},
    {"no child: an empty line, and inside the next record", "1 NOTE x\n0 TRLR\n", "CHIL", 0, "0 TRLR", "TRLR", "x", "",
     1, "\r\n"},
    {"a record of that name is none", "0 CHIL x\n", "chil", 0, "0 CHIL x", "CHIL", "x", "", 1, "\r\n"},
    {"a line without a value keeps that of a line passed over", "1 NOTE a b\n1 BIRT\n", "BIRT", 0, "1 BIRT", "BIRT",
     "a ", "", 1},
    {"but not that of an earlier seek", "1 BIRT\n", "BIRT", 0, "1 BIRT", "BIRT", "", "", 1},
    {"nowhere: the last line's parts, and no line", "1 NOTE a b\n1 BIRT\n", "SEX", 1, "", "BIRT", "a ", "", 1},
    {"a last line without an end is not parsed", "1 NOTE a b\n1 SEX M", "SEX", 0, "1 SEX M", "NOTE", "a ", "b", 0},
    {"an empty source", "", "SEX", 1, "", before, "", before, 1},
    {"a short line is joined to the next", "1 \nNAME x\n", "NAME", 0, "1 NAME x", "NAME", "x", "", 1},
    {"three times", "\n1\r\n N\nAME x\n", "NAME", 0, "1 NAME x", "NAME", "x", "", 1},
    {"empty lines vanish", "\n\n\r\n1 NAME x\r\n\r\n", "NAME", 0, "1 NAME x", "NAME", "x", "", 1},
    {"lines that end in a carriage return", "0 HEAD\r1 NAME x\r", "NAME", 0, "1 NAME x", "NAME", "x", "", 1},
    {"four characters are a line", "1 NA\n1 SEX M\n", "NA", 0, "1 NA", "NA", "", "", 1},
    {"a line feed behind the last line runs off", "1 NAME x\r\n", "SEX", 0, "", "NAME", "x", "", 0, "", pastEnd},
    {"a lone one doesn't", "1 NAME x\n", "SEX", 0, "", "NAME", "x", "", 0},
    {"a short last line with an end runs off", "1 NAME x\nab\n", "SEX", 0, "ab", "NAME", "x", "", 0, "", pastEnd},
    {"a short last line without one doesn't", "1 NAME x\r\nab", "SEX", 0, "ab", "NAME", "x", "", 0},
    {"a zero byte is a character", nullptr, "N", 0, nullptr, "N", "x", "", 1},
};

class GedSeekTest : public ConversionTest, public testing::WithParamInterface<SeekRule>
{
};

TEST_P(GedSeekTest, ASeek_StopsWhereItsRuleSays)
{
    const SeekRule& rule = GetParam();
    const QByteArray withZero("1 N x\0y", 7);
    GivenReport();
    GivenSource(rule.Source ? QByteArray(rule.Source) : QByteArray(withZero + "\n"));
    P.Gedcom.sSeekFor = rule.SeekFor;
    for (QByteArray* word : {&P.Gedcom.sGedLine, &P.Gedcom.sGedTag, &P.Gedcom.sGedValue, &P.Gedcom.sGedRest})
        *word = before;
    P.Scratch.ScanState = rule.ScanState;
    int error = 0;
    try {
        GedSeek(P);
    } catch (const RuntimeError& refused) {
        error = refused.Number;
    }
    EXPECT_EQ(error, rule.Error);
    EXPECT_EQ(P.Gedcom.sGedLine, rule.Line ? QByteArray(rule.Line) : withZero);
    EXPECT_EQ(P.Gedcom.sGedTag, QByteArray(rule.Tag));
    EXPECT_EQ(P.Gedcom.sGedValue, rule.Line ? QByteArray(rule.Value) : QByteArray("x\0y", 3));
    EXPECT_EQ(P.Gedcom.sGedRest, QByteArray(rule.Rest));
    EXPECT_EQ(P.Scratch.ScanState, rule.StateAfter);
    EXPECT_EQ(ClosedReport(), QByteArray(rule.Report));
}

INSTANTIATE_TEST_SUITE_P(Rules, GedSeekTest, testing::ValuesIn(seekRules));

using GedSeekPositionTest = ConversionTest;

TEST_F(GedSeekPositionTest, TheNextSeek_GoesOnBehindTheLineFound)
{
    GivenSource("1 NOTE a\n1 NOTE b\n1 NOTE c");
    P.Gedcom.sSeekFor = "NOTE";
    QByteArrayList values;
    for (int seek = 0; seek < 4; ++seek) {
        GedSeek(P);
        values << P.Gedcom.sGedValue;
    }
    EXPECT_EQ(values, QByteArrayList({"a", "b", "", ""}));
}

TEST_F(GedSeekPositionTest, AnOpening_GoesBackToTheStart)
{
    GivenSource("1 NOTE a\n1 NOTE b\n");
    P.Gedcom.sSeekFor = "NOTE";
    GedSeek(P);
    P.Gedcom.Source->Close();
    P.Gedcom.Source->Open();
    GedSeek(P);
    EXPECT_EQ(P.Gedcom.sGedValue, "a");
}

TEST_F(GedSeekPositionTest, ASeekInAClosedSource_IsRefused)
{
    EXPECT_EQ(RefusalOf([&] { GedSeek(P); }), ErrorNumber::BadFileNumber);
    GivenSource("1 NOTE a\n");
    P.Gedcom.Source->Close();
    EXPECT_EQ(RefusalOf([&] { GedSeek(P); }), ErrorNumber::BadFileNumber);
}

TEST_F(GedSeekPositionTest, AnOpenSource_IsNotOpenedAgain)
{
    GivenSource("1 NOTE a\n");
    EXPECT_EQ(RefusalOf([&] { P.Gedcom.Source->Open(); }), ErrorNumber::FileAlreadyOpen);
}

TEST_F(GedSeekPositionTest, NoChildWithoutAReport_IsRefused)
{
    GivenSource("0 TRLR\n");
    P.Gedcom.sSeekFor = "CHIL";
    EXPECT_EQ(RefusalOf([&] { GedSeek(P); }), ErrorNumber::BadFileNumber);
}

} // namespace
} // namespace lineforge
