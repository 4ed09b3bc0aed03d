#include "shell/ShellTest.h"

namespace lineforge
{
namespace
{

// What the menu itself says when it opens.
class DataBaseMenuTest : public ShellTest
{
protected:
    DataBaseMenuTest() { GivenSmithsAndJones(); }

    void ExpectNoBranchBox()
    {
        Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);
    }
};

TEST_F(DataBaseMenuTest, NoBranch_IsTold)
{
    ExpectNoBranchBox();

    P.Form1->mnuDataBase.Click();
}

TEST_F(DataBaseMenuTest, ClosedBranch_IsTold)
{
    Choose(u"Smiths");
    P.Form1->mnuCloseDB.Click();
    ExpectNoBranchBox();

    P.Form1->mnuDataBase.Click();
}

TEST_F(DataBaseMenuTest, OpenBranch_SaysNothing)
{
    Choose(u"Smiths");

    P.Form1->mnuDataBase.Click();
}

} // namespace
} // namespace lineforge
