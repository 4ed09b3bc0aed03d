#include "output/OutputTest.h"

namespace lineforge
{
namespace
{

class PrinterSetupTest : public OutputTest
{
};

// Cancel or not, nothing is said afterwards.
TEST_F(PrinterSetupTest, AllMenus_OpenTheDialog_AndSayNothing)
{
    GivenPeople(1);
    for (const Event& menu : {P.Form1->mnuPrinterSetUp.Click, P.Form3->mnuPrintSetup.Click, P.Form2->mnuPrSetup.Click,
                              P.Form5->mnuPrintSetup.Click}) {
        Prompts.ExpectPrinterSetup();
        menu();
    }

    EXPECT_EQ(Machine.Printer.Asked, 0);
}

TEST_F(PrinterSetupTest, WithoutABranch_TheDialogOpensToo)
{
    Prompts.ExpectPrinterSetup();

    P.Form1->mnuPrinterSetUp.Click();
}

} // namespace
} // namespace lineforge
