#include "program/branch/SiblingBranch.h"
#include "shell/branches/NewBranchTest.h"

namespace lineforge
{
namespace
{

// Whatever way leads out of a record of another branch, a map is only ever written to the branch that it belongs to.
class MapOwnershipTest : public NewBranchTest
{
protected:
    MapOwnershipTest()
    {
        GivenSmithsAndJones();
        OtherMap = MapOf(u'B');
        Choose(u"Smiths");
        MoveFirstBoxTo(1300);
        OwnMap = QByteArray(MapOf(u'A')).replace("1200,600,255,A001", "1300,600,255,A001");
        SwitchToSibling(P, u"B");
    }

    void ExpectMapsWhereTheyBelong()
    {
        EXPECT_EQ(MapOf(u'A'), OwnMap);
        EXPECT_EQ(MapOf(u'B'), OtherMap);
        EXPECT_FALSE(Home.Exists(u"LfgDat_B/LfgDat_B.~cf"));
    }

    QByteArray OwnMap;
    QByteArray OtherMap;
};

TEST_F(MapOwnershipTest, Exit_WritesTheMapsOwnBranch)
{
    Click(P.Form1->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 0);
    ExpectMapsWhereTheyBelong();
}

TEST_F(MapOwnershipTest, Close_WritesTheMapsOwnBranch)
{
    P.Form1->mnuCloseDB.Click();

    ExpectMapsWhereTheyBelong();
}

TEST_F(MapOwnershipTest, CloseAndCloseAgain_WriteNoEmptyMapIntoABranch)
{
    P.Form1->mnuCloseDB.Click();
    P.Form1->mnuCloseDB.Click();
    Click(P.Form1->mnuExit.Click);

    ExpectMapsWhereTheyBelong();
}

TEST_F(MapOwnershipTest, Open_WritesTheMapsOwnBranch_AndTheOtherOpensAsItWas)
{
    Choose(u"Jones");

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    ExpectMapsWhereTheyBelong();
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::File].Text(), u"B001"_s);
}

TEST_F(MapOwnershipTest, CancelledList_LeavesTheRecordOfTheOtherBranch_AndBothMaps)
{
    P.Form1->Open.Click();
    P.Form8->Command2.Click();

    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    Click(P.Form1->mnuExit.Click);
    ExpectMapsWhereTheyBelong();
}

TEST_F(MapOwnershipTest, NewBranchMadeFromThere_GetsNoneOfTheMaps)
{
    Make(u"Browns", u"LfgDat_C");

    ExpectMapsWhereTheyBelong();
    EXPECT_EQ(MapOf(u'C'), Home.ReadFile(u"LfgEmpt.~cf"));
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
}

TEST_F(MapOwnershipTest, ReturnAndExit_WriteTheMapsOwnBranch)
{
    ReturnFromSibling(P);
    Click(P.Form1->mnuExit.Click);

    ExpectMapsWhereTheyBelong();
}

TEST_F(MapOwnershipTest, FrameOfTheMainWindow_WritesNoMapAtAll)
{
    const Tree before = Home.Snapshot();

    Click(P.Form1->CloseByFrame);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

} // namespace
} // namespace lineforge
