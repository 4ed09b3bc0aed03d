#include "gedcom/writer/Lineage.h"

#include "gedcom/GedcomTest.h"
#include "support/Refusal.h"

namespace lineforge
{
namespace
{

// The walk alone, without a file.
class LineageTest : public GedcomTest
{
protected:
    void CollectFrom(const QString& start)
    {
        P.Form12->Text7.Text = start;
        CollectLineage(P);
    }
    QString Count() const { return P.Lineage.sLineageCount; }
};

// John, his father and grandfather, his two children by Ann, and his brother.
const std::vector<Person> family{
    {u"A001"_s, u"A003"_s, u"A004"_s},
    {u"A002"_s, u"A001"_s, u"A006"_s},
    {u"A003"_s, u"A005"_s},
    {u"A004"_s},
    {u"A005"_s},
    {u"A006"_s},
    {u"A007"_s, u"A001"_s, u"A006"_s},
    {u"A008"_s, u"A003"_s, u"A004"_s},
};

TEST_F(LineageTest, Family_FillsTheTable_AndTellsTheWholeWalk)
{
    GivenPeople(family);

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Count(), u"3");
    EXPECT_EQ(Table(), QStringList({u"Fam|A001|A006|A003|A004|A002,A007"_s, u"Fam|A003|A004|A005|    |A001,A008"_s,
                                    u"Fam|A005||    |    |A003"_s, u"|A002||A001|A006|"_s, u"|A007||A001|A006|"_s,
                                    u"|A008||A003|A004|"_s, u"|A006|A001|||"_s, u"|A004|A003|||"_s}));
    const QStringList told{
        u"SECTION1:First fill array with lineage individuals"_s,
        u"Rec A001 Pa A003 Ma A004"_s,
        u"Rec A003 Pa A005 Ma     "_s,
        u"Rec A005 Pa      Ma     "_s,
        u"SECTION2:Search for Records who's Pa is = Subject & add offspring to array"_s,
        u"Indi A001 Spse  Pa A003 Ma A004 Sib1 A002 Sib2 A007 Sib3  Sib4  Sib5  Sib6 "_s,
        u"Indi A003 Spse  Pa A005 Ma      Sib1 A001 Sib2 A008 Sib3  Sib4  Sib5  Sib6 "_s,
        u"Indi A005 Spse  Pa      Ma      Sib1 A003 Sib2  Sib3  Sib4  Sib5  Sib6 "_s,
        u"SECTION3:search for offspring of indi's & add new array data if not in already"_s,
        u"Indi A002 Spse  Pa A001 Ma A006 Sib1  Sib2  Sib3  Sib4  Sib5  Sib6 "_s,
        u"Indi A007 Spse  Pa A001 Ma A006 Sib1  Sib2  Sib3  Sib4  Sib5  Sib6 "_s,
        u"Indi A008 Spse  Pa A003 Ma A004 Sib1  Sib2  Sib3  Sib4  Sib5  Sib6 "_s,
        u"SECTION4:"_s,
        u"Now search array for individuals with offspring, test each for same recs Ma"_s,
        u"If any are different test array for this as an individual and add in if not"_s,
        u"present. If all Ma's same rec then goto Pa in array and add in Ma as spouse"_s,
        u"MaArray.........."_s,
        u"A006"_s,
        u"A006"_s,
        u"MaArray.........."_s,
        u"A004"_s,
        u"A004"_s,
        u"MaArray.........."_s,
        u"FamInd:A001 Sps:A006 Pa:A003 Ma:A004 S1:A002 S2:A007 S3: S4: S5: S6:"_s,
        u"FamInd:A003 Sps:A004 Pa:A005 Ma:     S1:A001 S2:A008 S3: S4: S5: S6:"_s,
        u"FamInd:A005 Sps: Pa:     Ma:     S1:A003 S2: S3: S4: S5: S6:"_s,
        u"Ind:A002 Sps: Pa:A001 Ma:A006 S1: S2: S3: S4: S5: S6:"_s,
        u"Ind:A007 Sps: Pa:A001 Ma:A006 S1: S2: S3: S4: S5: S6:"_s,
        u"Ind:A008 Sps: Pa:A003 Ma:A004 S1: S2: S3: S4: S5: S6:"_s,
        u"Ind:A006 Sps:A001 Pa: Ma: S1: S2: S3: S4: S5: S6:"_s,
        u"Ind:A004 Sps:A003 Pa: Ma: S1: S2: S3: S4: S5: S6:"_s,
    };
    EXPECT_EQ(Panel(), told);
}

TEST_F(LineageTest, StepsFollowAllLinesButTheHeadsAndThoseOfTheLine)
{
    GivenPeople(family);
    Machine.Loop.Yields = 0;

    CollectFrom(u"A001"_s);

    // Three rows of offspring, the head of the third section and its three rows, the head of the fourth, four mothers,
    // eight rows of the listing. The panel has not come to its end, so that each yields once.
    EXPECT_EQ(Machine.Loop.Yields, 3 + 4 + 1 + 4 + 8);
}

TEST_F(LineageTest, NumbersThatDifferInCaseOnly_AreTheSame)
{
    GivenPeople({{u"A001"_s, u"a002"_s},
                 {u"A002"_s},
                 {u"A003"_s, u"A001"_s, u"a004"_s},
                 {u"A005"_s, u"a001"_s, u"A004"_s},
                 {u"A004"_s}});

    CollectFrom(u"a001"_s);

    EXPECT_EQ(Table(), QStringList({u"Fam|a001|a004|a002|    |A003,A005"_s, u"Fam|a002||    |    |A001"_s,
                                    u"|A003||A001|a004|"_s, u"|A005||a001|A004|"_s, u"|a004|a001|||"_s}));
}

TEST_F(LineageTest, UnknownStart_IsOneRow_AndItsOffspringAreFoundAllTheSame)
{
    GivenPeople({{u"A001"_s, u"X010"_s}});

    CollectFrom(u"X010"_s);

    EXPECT_EQ(Count(), u"1");
    EXPECT_EQ(Table(), QStringList({u"Fam|X010||||A001"_s, u"|A001||X010|    |"_s}));
    EXPECT_FALSE(Panel().join(u'\n').contains(u"Rec "));
}

TEST_F(LineageTest, StartWithoutParents_IsALineOfOne)
{
    GivenPeople({{u"A001"_s}});

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Count(), u"1");
    EXPECT_EQ(Table(), QStringList{u"|A001||    |    |"_s});
}

TEST_F(LineageTest, StartWithAMotherOnly_HasARowOfBlanksBehindIt_AndTheOffspringOfBlanks)
{
    GivenPeople({{u"A001"_s, {}, u"A002"_s}, {u"A002"_s}, {u"A003"_s, u"    "_s}});

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Count(), u"2");
    EXPECT_EQ(Table(), QStringList({u"|A001||    |A002|"_s, u"Fam|    ||||A003"_s, u"|A003||    |    |"_s}));
}

TEST_F(LineageTest, EmptyFatherIsNoBlankOne_ItsRowIsEmptyAndEndsTheLine)
{
    GivenPeople({{u"A001"_s, u""_s}, {u"A002"_s, u"A001"_s}});

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Count(), u"2");
    EXPECT_EQ(Table(), QStringList({u"Fam|A001|||    |A002"_s, u"|A002||A001|    |"_s}));
}

TEST_F(LineageTest, SevenChildren_GiveSix)
{
    std::vector<Person> people{{u"A001"_s}, {u"A009"_s}};
    for (int child = 2; child <= 8; ++child)
        people.push_back({u"A00%1"_s.arg(child), u"A001"_s, u"A009"_s});
    GivenPeople(people);

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table().first(), u"Fam|A001|A009|    |    |A002,A003,A004,A005,A006,A007"_s);
    EXPECT_EQ(Table().size(), 1 + 6 + 1) << "the seventh is nowhere";
}

TEST_F(LineageTest, ChildrenOfTwoMothers_GiveNeitherSpouseNorMark)
{
    GivenPeople(
        {{u"A001"_s}, {u"A002"_s, u"A001"_s, u"A004"_s}, {u"A003"_s, u"A001"_s, u"A005"_s}, {u"A004"_s}, {u"A005"_s}});

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table(), QStringList({u"|A001||    |    |A002,A003"_s, u"|A002||A001|A004|"_s, u"|A003||A001|A005|"_s}));
    EXPECT_EQ(P.Lineage.MaDiffer, 1);
    EXPECT_EQ(P.Lineage.MaArray, (FixedArray<QString, 0, 10>()));
}

TEST_F(LineageTest, ChildrenWithoutAMother_MarkTheRow_WithAnEmptySpouse)
{
    GivenPeople({{u"A001"_s}, {u"A002"_s, u"A001"_s}, {u"A003"_s, u"A001"_s}});

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table(),
              QStringList({u"Fam|A001||    |    |A002,A003"_s, u"|A002||A001|    |"_s, u"|A003||A001|    |"_s}));
    const qsizetype heading = Panel().indexOf(u"MaArray.........."_s);
    EXPECT_TRUE(Panel()[heading + 1].startsWith(u"FamInd:A001")) << "no entry is told";
}

TEST_F(LineageTest, MotherOfTheFirstChildMissing_EndsTheTellingAtOnce_ButCountsAsADifference)
{
    GivenPeople({{u"A001"_s}, {u"A002"_s, u"A001"_s}, {u"A003"_s, u"A001"_s, u"A004"_s}, {u"A004"_s}});

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table().first(), u"|A001||    |    |A002,A003"_s);
    EXPECT_EQ(P.Lineage.MaDiffer, 1);
    EXPECT_FALSE(Panel().contains(u"A004"_s));
}

TEST_F(LineageTest, MotherOfALaterChildMissing_HidesTheDifferencesBehindIt)
{
    GivenPeople({{u"A001"_s},
                 {u"A002"_s, u"A001"_s, u"A005"_s},
                 {u"A003"_s, u"A001"_s},
                 {u"A004"_s, u"A001"_s, u"A006"_s},
                 {u"A005"_s},
                 {u"A006"_s}});

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table().first(), u"Fam|A001|A005|    |    |A002,A003,A004"_s);
}

TEST_F(LineageTest, SecondRun_GivesTheSameTable)
{
    GivenPeople(family);
    CollectFrom(u"A001"_s);
    const QStringList first = Table();
    const QStringList told = Panel();
    P.Form12->Picture1.Cls();

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table(), first);
    EXPECT_EQ(Panel(), told);
}

TEST_F(LineageTest, SecondRunFromElsewhere_LeavesNothingOfTheFirst)
{
    GivenPeople(family);
    CollectFrom(u"A001"_s);

    CollectFrom(u"A004"_s);

    EXPECT_EQ(Table(), QStringList{u"|A004||    |    |"_s});
    EXPECT_EQ(Count(), u"1");
}

struct StaleCount {
    int IdxA;
    QStringView Row;
    int Rows;
};

void PrintTo(const StaleCount& stale, std::ostream* out)
{
    *out << stale.IdxA;
}

class StaleCountTest : public LineageTest, public testing::WithParamInterface<StaleCount>
{
};

TEST_P(StaleCountTest, FirstRow_BeginsAtWhatWasLeft_TheOthersAtTheFirstCell)
{
    GivenPeople({{u"A001"_s, u"A004"_s}, {u"A002"_s, u"A001"_s}, {u"A003"_s, u"A001"_s}, {u"A004"_s}});
    P.Scratch.IdxA = GetParam().IdxA;

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table().first(), GetParam().Row);
    EXPECT_EQ(Table()[1], u"Fam|A004||    |    |A001"_s);
    EXPECT_EQ(Table().size(), GetParam().Rows) << "cells behind an empty one are hidden from the later sections";
}

INSTANTIATE_TEST_SUITE_P(Counts, StaleCountTest,
                         testing::Values(StaleCount{0, u"Fam|A001||A004|    |A002,A003", 4},
                                         StaleCount{1, u"|A001||A004|    |,A002,A003", 2},
                                         StaleCount{5, u"|A001||A004|    |,,,,,A002", 2},
                                         StaleCount{6, u"|A001||A004|    |", 2},
                                         StaleCount{100, u"|A001||A004|    |", 2}));

// A report counts the characters of its long fields in the shared index: what is left there is the length of the last
// piece of the last one, with the blank behind it.
struct ReportBefore {
    const char* Name;
    QString Notes;
    QStringView Row;
    void (*PutOut)(Program& p, ScriptedPrompts& user);
};

void PrintTo(const ReportBefore& report, std::ostream* out)
{
    *out << report.Name;
}

class ReportBeforeLineageTest : public LineageTest, public testing::WithParamInterface<ReportBefore>
{
};

TEST_P(ReportBeforeLineageTest, FirstRow_BeginsAtTheLengthOfItsLastPiece)
{
    GivenPeople({{u"A001"_s, u"A004"_s}, {u"A002"_s, u"A001"_s}, {u"A003"_s, u"A001"_s}, {u"A004"_s}});
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Notes", GetParam().Notes);
    Records(P.Form3).Update();
    P.Scratch.IdxA = 100;

    GetParam().PutOut(P, Prompts);
    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table().first(), GetParam().Row);
}

void CopyToClipboard(Program& p, ScriptedPrompts&)
{
    p.Form3->mnuCopyRecToClip.Click();
}

void PrintOnPaper(Program& p, ScriptedPrompts&)
{
    p.Form1->mnuPrintRecord.Click();
}

// Its last record is A004, without notes.
void WriteToFile(Program& p, ScriptedPrompts& user)
{
    const QString text =
        u"Database will be Copied to the Text File located at\n"_s + p.Branch.WorkDir + PathSeparator + u"LfgDat_A.txt";
    user.Expect(u"Make a Text File.", text, Buttons::Information);
    p.Form1->mnuTxtDBase.Click();
}

INSTANTIATE_TEST_SUITE_P(
    Reports, ReportBeforeLineageTest,
    testing::Values(
        ReportBefore{"no notes", QString(), u"|A001||A004|    |,A002,A003", CopyToClipboard},
        ReportBefore{"four letters", u"Cats"_s, u"|A001||A004|    |,,,,,A002", CopyToClipboard},
        ReportBefore{"five letters", u"Horse"_s, u"|A001||A004|    |", CopyToClipboard},
        ReportBefore{"second line", QString(79, u'x') + u" on", u"|A001||A004|    |,,,A002,A003", CopyToClipboard},
        // Nothing is left behind the cut.
        ReportBefore{"cut at the end", QString(79, u'x'), u"Fam|A001||A004|    |A002,A003", CopyToClipboard},
        ReportBefore{"paper", u"Cat"_s, u"|A001||A004|    |,,,,A002,A003", PrintOnPaper},
        ReportBefore{"text file", u"Cat"_s, u"|A001||A004|    |,A002,A003", WriteToFile}));

// What a run leaves in the shared index is what the lines of the next one show.
TEST_F(LineageTest, LastThreeOffspring_AreThoseOfTheRowThatAnEarlierSearchEndedAt)
{
    std::vector<Person> people{{u"A001"_s, u"A010"_s}, {u"A010"_s}};
    for (int child = 2; child <= 6; ++child)
        people.push_back({u"A00%1"_s.arg(child), u"A001"_s});
    GivenPeople(people);
    P.Scratch.IdxB = 0;
    CollectFrom(u"A001"_s);
    EXPECT_TRUE(Panel().contains(u"Indi A010 Spse  Pa      Ma      Sib1 A001 Sib2  Sib3  Sib4 A005 Sib5 A006 Sib6 "_s));
    P.Form12->Picture1.Cls();
    P.Scratch.IdxB = 50;

    CollectFrom(u"A001"_s);

    EXPECT_TRUE(Panel().contains(u"Indi A001 Spse  Pa A010 Ma      Sib1 A002 Sib2 A003 Sib3 A004 Sib4  Sib5  Sib6 "_s));
    EXPECT_EQ(Table().first(), u"Fam|A001||A010|    |A002,A003,A004,A005,A006"_s);
}

class StaleRowTest : public LineageTest, public testing::WithParamInterface<int>
{
};

TEST_P(StaleRowTest, OutsideTheTable_IsASubscriptError)
{
    GivenPeople({{u"A001"_s}});
    P.Scratch.IdxB = GetParam();

    EXPECT_EQ(RefusalOf([&] { CollectFrom(u"A001"_s); }), ErrorNumber::Subscript);
}

INSTANTIATE_TEST_SUITE_P(Rows, StaleRowTest, testing::Values(-1, 100));

} // namespace
} // namespace lineforge
