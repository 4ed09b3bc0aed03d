#include "output/OutputTest.h"

namespace lineforge
{
namespace
{

class PrintCurrentRecordTest : public OutputTest
{
};

TEST_F(PrintCurrentRecordTest, BothMenus_PrintTheCurrentRecord_OneJobEach_AndStayOnIt)
{
    GivenPeople(3);
    GoTo(u"A002");

    P.Form1->mnuPrintRecord.Click();
    P.Form3->mnuPrinRecord.Click();

    EXPECT_EQ(RecordsOnJobs(), std::vector<QStringList>({{u"A002"_s}, {u"A002"_s}}));
    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(P.Output.OutputMode, OutputMode::None);
}

TEST_F(PrintCurrentRecordTest, SiblingsRecord_IsPrintedWhileItIsShown)
{
    GivenPeople(1);
    GivenRecordOfSibling();

    P.Form1->mnuPrintRecord.Click();

    EXPECT_EQ(RecordsOnJobs(), std::vector<QStringList>({{u"B002"_s}}));
    EXPECT_EQ(P.Branch.UsingAlternate, 1);
}

TEST_F(PrintCurrentRecordTest, BehindTheLastRecord_NothingIsPrinted)
{
    GivenPeople(1);
    Records(P.Form3).MoveNext();

    P.Form1->mnuPrintRecord.Click();

    EXPECT_EQ(Machine.Printer.Asked, 0);
    EXPECT_EQ(P.Output.OutputMode, OutputMode::None);
}

TEST_F(PrintCurrentRecordTest, EmptyBranch_NothingIsPrinted)
{
    GivenRecords({});

    P.Form1->mnuPrintRecord.Click();

    EXPECT_EQ(Machine.Printer.Asked, 0);
}

TEST_F(PrintCurrentRecordTest, NoBranch_IsTold)
{
    ExpectNoBranchBox();

    P.Form1->mnuPrintRecord.Click();

    EXPECT_EQ(Machine.Printer.Asked, 0);
}

TEST_F(PrintCurrentRecordTest, NoPrinter_IsReportedOnce_AndTheNextPrintWorks)
{
    GivenPeople(1);
    Machine.Printer.IsThere = false;
    ExpectPrinterErrorBox();
    P.Form1->mnuPrintRecord.Click();
    EXPECT_EQ(P.Output.OutputMode, OutputMode::None);
    EXPECT_EQ(Current(), u"A001"_s);

    Machine.Printer.IsThere = true;
    P.Form3->mnuPrinRecord.Click();

    EXPECT_EQ(RecordsOnJobs(), std::vector<QStringList>({{u"A001"_s}}));
}

} // namespace
} // namespace lineforge
