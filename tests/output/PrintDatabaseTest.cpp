#include "output/OutputTest.h"

namespace lineforge
{
namespace
{

using testing::Values;
using testing::WithParamInterface;

class PrintDatabaseTest : public OutputTest
{
protected:
    void Print(Answer answer = Answer::Ok)
    {
        Prompts.Expect(u"DataBase Print", u"Ready to Print Complete DataBase ?", Buttons::QuestionOkCancel, answer);
        P.Form3->mnuPrinDatabase.Click();
    }

    // The records that begin on each page of a job.
    static std::vector<QStringList> RecordsByPage(const QString& job)
    {
        std::vector<QStringList> pages(static_cast<std::size_t>(PagesOf(job)));
        bool isNumber = false;
        for (const PrintedWord& word : WordsOn(job)) {
            if (isNumber)
                pages.at(static_cast<std::size_t>(word.Page - 1)).push_back(word.Text);
            isNumber = word.Text == u"RECORD";
        }
        return pages;
    }
};

TEST_F(PrintDatabaseTest, OddNumberOfRecords_TheLastPageHoldsOne_AndNoEmptyPageFollows)
{
    GivenPeople(5);

    Print();

    ASSERT_EQ(Jobs().size(), 1);
    EXPECT_EQ(RecordsByPage(Jobs().first()),
              std::vector<QStringList>({{u"A001"_s, u"A002"_s}, {u"A003"_s, u"A004"_s}, {u"A005"_s}}));
}

TEST_F(PrintDatabaseTest, EvenNumberOfRecords_NoPageFollowsTheLastPair)
{
    GivenPeople(4);

    Print();

    ASSERT_EQ(Jobs().size(), 1);
    EXPECT_EQ(RecordsByPage(Jobs().first()),
              std::vector<QStringList>({{u"A001"_s, u"A002"_s}, {u"A003"_s, u"A004"_s}}));
}

class PrintDatabasePagesTest : public PrintDatabaseTest, public WithParamInterface<int>
{
};

TEST_P(PrintDatabasePagesTest, AllRecords_AreOneJob_TwoToAPage)
{
    GivenPeople(GetParam());

    Print();

    ASSERT_EQ(Jobs().size(), 1);
    EXPECT_EQ(PagesOf(Jobs().first()), (GetParam() + 1) / 2);
    EXPECT_EQ(RecordsOn(Jobs().first()).size(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Counts, PrintDatabasePagesTest, Values(1, 2, 3, 20, 21));

TEST_F(PrintDatabaseTest, Records_ComeInStorageOrder)
{
    GivenRecords({{{u"File", u"A003"}}, {{u"File", u"A001"}}, {{u"File", u"A002"}}});

    Print();

    EXPECT_EQ(RecordsOn(Jobs().value(0)), QStringList({u"A003"_s, u"A001"_s, u"A002"_s}));
}

TEST_F(PrintDatabaseTest, Print_BeginsAndEndsOnTheFirstRecord_WhereverTheUserWas)
{
    GivenPeople(3);
    GoTo(u"A002");

    Print();

    EXPECT_EQ(RecordsOn(Jobs().value(0)).size(), 3);
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(P.Output.OutputMode, OutputMode::None);
}

TEST_F(PrintDatabaseTest, Cancel_EndsIt_WhereTheUserWas)
{
    GivenPeople(3);
    GoTo(u"A002");

    Print(Answer::Cancel);

    EXPECT_EQ(Machine.Printer.Asked, 0);
    EXPECT_EQ(Current(), u"A002"_s);
}

TEST_F(PrintDatabaseTest, EmptyBranch_GivesNoPage)
{
    GivenRecords({});

    Print();

    EXPECT_EQ(Machine.Printer.Asked, 0);
}

TEST_F(PrintDatabaseTest, LongRecord_RunsOn_AndThePairBehindItsOwnBeginsAPage)
{
    GivenRecords(
        {{{u"File", u"A001"}, {u"Notes", u"some words "_s.repeated(600)}}, {{u"File", u"A002"}}, {{u"File", u"A003"}}});

    Print();

    const std::vector<QStringList> pages = RecordsByPage(Jobs().value(0));
    ASSERT_GT(pages.size(), 2U);
    EXPECT_EQ(pages.front(), QStringList{u"A001"_s});
    EXPECT_EQ(pages.back(), QStringList{u"A003"_s});
    EXPECT_EQ(RecordsOn(Jobs().value(0)), QStringList({u"A001"_s, u"A002"_s, u"A003"_s}));
}

TEST_F(PrintDatabaseTest, BegunOnASiblingsRecord_PrintsTheBranchThatIsShown)
{
    GivenPeople(1);
    GivenRecordOfSibling();

    Print();

    EXPECT_EQ(RecordsOn(Jobs().value(0)), QStringList({u"B001"_s, u"B002"_s}));
    EXPECT_EQ(P.Branch.UsingAlternate, 1);
}

TEST_F(PrintDatabaseTest, NoPrinter_IsReportedOnce_AndTheNextPrintWorks)
{
    GivenPeople(3);
    Machine.Printer.IsThere = false;
    Prompts.Expect(u"DataBase Print", u"Ready to Print Complete DataBase ?", Buttons::QuestionOkCancel);
    ExpectPrinterErrorBox();
    P.Form3->mnuPrinDatabase.Click();
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(P.Output.OutputMode, OutputMode::None);

    Machine.Printer.IsThere = true;
    Print();

    EXPECT_EQ(RecordsOn(Jobs().value(0)).size(), 3);
}

} // namespace
} // namespace lineforge
