#include "gedcom/report/ConversionTest.h"
#include "gedcom/report/GedFields.h"
#include "gedcom/report/GedcomMutations.h"
#include "gedcom/report/LiteralMachine.h"

#include <random>

namespace lineforge
{
namespace
{

// One source read by both, step by step.
class GedcomEqualityTest : public ConversionTest
{
protected:
    void GivenBoth(const QByteArray& source)
    {
        P.Gedcom = GedcomState();
        P.Scratch.ScanState = GedRecord::Outside;
        GivenReport();
        GivenSource(source);
        Literal.emplace(source);
    }

    template <class Action>
    void Both(Action&& ours, void (*literally)(LiteralMachine&, int times), int times = 1)
    {
        EXPECT_EQ(RefusalOf(ours), RefusalOf([&] { literally(*Literal, times); }));
        EXPECT_EQ(P.Gedcom.sGedLine, Literal->Line);
        EXPECT_EQ(P.Gedcom.sGedLevel, Literal->Level);
        EXPECT_EQ(P.Gedcom.sGedTag, Literal->Tag);
        EXPECT_EQ(P.Gedcom.sGedValue, Literal->Value);
        EXPECT_EQ(P.Gedcom.sGedRest, Literal->Rest);
        EXPECT_EQ(P.Scratch.ScanState, Literal->ScanState);
    }

    void SetBoth(const QByteArray& seekFor, int scanState)
    {
        P.Gedcom.sSeekFor = seekFor;
        Literal->SeekFor = seekFor;
        P.Scratch.ScanState = scanState;
        Literal->ScanState = scanState;
    }

    void SeekInBoth()
    {
        Both([&] { GedSeek(P); }, [](LiteralMachine& machine, int) { machine.Seek(); });
    }

    void SeekChildInBoth(int times)
    {
        Both([&] { GedSeekChild(P, times); },
             [](LiteralMachine& machine, int count) {
                 for (int seek = 0; seek < count; ++seek)
                     machine.Seek();
             },
             times);
    }

    void OpenBoth()
    {
        P.Gedcom.Source->Close();
        P.Gedcom.Source->Open();
        Literal->Open();
    }

    std::optional<LiteralMachine> Literal;
};

// Mostly of what seeks care for: zeros, blanks, line ends, short lines, and few tags.
QByteArray RandomSource(std::minstd_rand& next)
{
    static const QByteArrayList pieces{"0 ",        "1 ",           "2 ",       "0 @I1@ INDI", "NAME",       "SEX M",
                                       "CHIL @I1@", "chil",         "WIFE x",   "\n",          "\r\n",       "\r",
                                       "\n",        "\n0 @F1@ FAM", "\n",       " ",           "  ",         "ab",
                                       "0",         "\n\n",         "\xC3\xA9", "BIRT",        "\n1 CHIL x", "DATE "};
    QByteArray source;
    for (auto left = next() % 60; left > 0; --left)
        source += pieces[static_cast<qsizetype>(next() / 5) % pieces.size()];
    return source;
}

TEST_F(GedcomEqualityTest, AnySeekInAnySource_LeavesWhatReadingItOverLeaves)
{
    static const QByteArrayList tags{"CHIL", "chil", "WIFE", "HUSB", "NAME", "SEX", "@I1@", "", "ab", "BIRT", "x"};
    for (unsigned seed = 1; seed <= 3000 && !HasFailure(); ++seed) {
        std::minstd_rand next(seed * 7919);
        const QByteArray source = RandomSource(next);
        SCOPED_TRACE(testing::Message() << seed << ": " << source.toPercentEncoding(" ").constData());
        GivenBoth(source);
        for (int step = 0; step < 12 && !HasFailure(); ++step) {
            if (next() % 6 == 0)
                OpenBoth();
            const bool keepsState = next() % 2 == 0;
            SetBoth(tags[static_cast<qsizetype>(next() / 3) % tags.size()],
                    keepsState ? Literal->ScanState : static_cast<int>(next() / 3 % 3));
            if (SameBytes(P.Gedcom.sSeekFor, "CHIL") && next() % 2 == 0)
                SeekChildInBoth(1 + static_cast<int>(next() / 3 % 5));
            else
                SeekInBoth();
        }
        EXPECT_EQ(ClosedReport(), Literal->Report);
    }
}

TEST_F(GedcomEqualityTest, AnyLine_IsParsedAsCharacterByCharacter)
{
    for (unsigned seed = 1; seed <= 3000 && !HasFailure(); ++seed) {
        std::minstd_rand next(seed * 104729);
        GivenBoth({});
        P.Gedcom.sGedLine = RandomSource(next).left(static_cast<qsizetype>(next() % 30));
        Literal->Line = P.Gedcom.sGedLine;
        Both([&] { GedParseLine(P.Gedcom); }, [](LiteralMachine& machine, int) { machine.ParseLine(); });
    }
}

// A hundred sources at a time.
class MutatedConversionTest : public ConversionTest, public testing::WithParamInterface<unsigned>
{
protected:
    static constexpr unsigned Sources = 100;

    void ExpectRun(bool isRefused)
    {
        ExpectChoice(SourcePath());
        ExpectAnnouncement(SourcePath());
        if (isRefused)
            ExpectRefusal();
    }

    // All that a report can be while every child found costs a line of the source.
    static qsizetype LongestReport(const QByteArray& source)
    {
        const qsizetype families = 21;
        const qsizetype people = 2 + source.toLower().count("chil") + 1;
        const qsizetype longestLine = 100 + 2 * source.size();
        return families * (people * 8 + 12) * longestLine;
    }

    void ExpectEqualEnds(const LiteralMachine& literal)
    {
        EXPECT_EQ(Report(), literal.Report);
        EXPECT_EQ(P.Errors.Last ? std::optional(P.Errors.Last->Number) : std::nullopt, literal.Error);
        EXPECT_EQ(P.Gedcom.sGedLine, literal.Line);
        EXPECT_EQ(P.Gedcom.sGedLevel, literal.Level);
        EXPECT_EQ(P.Gedcom.sGedTag, literal.Tag);
        EXPECT_EQ(P.Gedcom.sGedValue, literal.Value);
        EXPECT_EQ(P.Gedcom.sGedRest, literal.Rest);
        EXPECT_EQ(P.Gedcom.sGedStage, literal.Stage);
        EXPECT_EQ(P.Gedcom.sGedIndi, literal.Indi);
        EXPECT_EQ(P.Scratch.ScanState, literal.ScanState);
        EXPECT_EQ(P.Gedcom.GedHeadState, literal.HeadState);
        EXPECT_EQ(P.Gedcom.GedIndiNext, literal.IndiNext);
        EXPECT_EQ(P.Gedcom.GedFamNext, literal.FamNext);
    }
};

TEST_P(MutatedConversionTest, AnySource_IsReportedAsByReadingItOverForEverySeek)
{
    constexpr int manyChildren = 200;
    for (unsigned number = GetParam() * Sources; number < (GetParam() + 1) * Sources && !HasFailure(); ++number) {
        const QByteArray source = MutatedSource(number);
        SCOPED_TRACE(testing::Message() << number << ": " << source.toPercentEncoding(" \n").constData());
        P.Gedcom = GedcomState();
        P.Scratch.ScanState = GedRecord::Outside;
        P.Errors.Clear();
        Home.WriteFile(u"family.ged", source);
        LiteralMachine literal(source);
        const bool isWhole = literal.Convert(manyChildren);
        ExpectRun(literal.HeadState == GedHead::Refused);
        Click(P.Form1->mnuImpGedcom.Click);
        if (isWhole) {
            ExpectEqualEnds(literal);
            EXPECT_LE(Report().size(), LongestReport(source));
        } else {
            EXPECT_TRUE(Report().startsWith(literal.Report));
            EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::Overflow);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Hundreds, MutatedConversionTest, testing::Range(0U, 20U));

// The source of a lone line feed at its end, after which nothing ends the children of the last pass but their count.
TEST_F(GedcomEqualityTest, ARunThatEndsByTheCountOfChildren_IsTheSameToTheLastByte)
{
    const QByteArray source = SmallFamily + Trailer;
    ConvertBytes(source);
    LiteralMachine literal(source);
    EXPECT_TRUE(literal.Convert());
    EXPECT_EQ(literal.Error, ErrorNumber::Overflow);
    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::Overflow);
    EXPECT_TRUE(Report() == literal.Report);
    constexpr int people = 3 + 2 + 32767;
    EXPECT_EQ(Report().count("Gender:"), people);
    EXPECT_TRUE(IsCompleted());
}

struct EndInNothing {
    const char* Name;
    const char* Tail; // behind a family; it has no line end
    int Nobodies;     // people of whom nothing is known
    bool HasPassOfNothing;
};

// The line that has no end isn't parsed, and no seek asks for a character behind it. What stops the search for children
// is the next record's first line: where that is the one without an end the family itself never ends, else the pass
// behind it, which finds a husband, a wife, a marriage and children of nothing.
class EndInNothingTest : public GedcomEqualityTest, public testing::WithParamInterface<EndInNothing>
{
};

TEST_P(EndInNothingTest, CountsTheChildrenOut)
{
    const QByteArray source = Crlf(SmallFamily + "1 NOTE x0\n") + GetParam().Tail;
    ConvertBytes(source);
    LiteralMachine literal(source);
    EXPECT_TRUE(literal.Convert());
    EXPECT_EQ(literal.Error, ErrorNumber::Overflow);
    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::Overflow);
    EXPECT_TRUE(Report() == literal.Report);
    EXPECT_EQ(Report().count("             Name:       \r\n          Gender:     Female\r\r\n\r\r\n"),
              GetParam().Nobodies);
    EXPECT_EQ(Report().contains("   MARRIAGE\r\n            Date:    \r\r\n           Place:    \r\r\n"),
              GetParam().HasPassOfNothing);
    EXPECT_TRUE(IsCompleted());
}

INSTANTIATE_TEST_SUITE_P(Tails, EndInNothingTest,
                         testing::Values(EndInNothing{"Trailer", "0 TRLR", 32767 - 1, false},
                                         EndInNothing{"LineBehindTheTrailer", "0 TRLR\r\n1 NOTE y", 2 + 32767, true}),
                         [](const auto& end) { return std::string(end.param.Name); });

} // namespace
} // namespace lineforge
