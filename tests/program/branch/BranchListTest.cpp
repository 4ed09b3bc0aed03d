#include "program/branch/AliasList.h"
#include "support/BranchBuilder.h"
#include "support/ProgramTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class BranchListTest : public ProgramTest
{
protected:
    void GivenBranches(const std::vector<Alias>& branches, QStringView open = {})
    {
        WriteAliasList(Home, branches);
        if (!open.isEmpty())
            P.Branch.WorkDir = P.Branch.HomeDir + open;
        ReadAliasList(P);
        FillBranchList(P);
    }

    QStringList Names() { return P.Form8->List1.Items; }
    QString Selected() { return P.Form8->List1.Text(); }
};

TEST_F(BranchListTest, Names_StandInTheOrderOfTheTable_NotSorted)
{
    GivenBranches({{u"Smiths", u"LfgDat_C"}, {u"Adams", u"LfgDat_A"}, {u"Jones family", u"LfgDat_B"}});

    EXPECT_EQ(Names(), (QStringList{u"Smiths"_s, u"Adams"_s, u"Jones family"_s}));
}

TEST_F(BranchListTest, WithNoBranchOpen_NothingIsSelected)
{
    GivenBranches({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});

    EXPECT_EQ(P.Form8->List1.ListIndex.value(), -1);
}

TEST_F(BranchListTest, OpenBranch_IsSelected_ItsDirectoryFoundInAnyCase)
{
    GivenBranches({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"lfgdat_b"}}, u"LfgDat_B");

    EXPECT_EQ(Selected(), u"Jones"_s);
}

TEST_F(BranchListTest, OrdinaryAndImportedBranchOfOneLetter_AreToldApart)
{
    GivenBranches({{u"Smiths", u"LfgDat_A"}, {u"Cousins", u"Import_A"}}, u"Import_A");

    EXPECT_EQ(Selected(), u"Cousins"_s);
}

TEST_F(BranchListTest, FirstOfTwoEntriesOfOneDirectory_IsSelected)
{
    GivenBranches({{u"Smiths", u"LfgDat_A"}, {u"Smiths again", u"LfgDat_A"}}, u"LfgDat_A");

    EXPECT_EQ(Selected(), u"Smiths"_s);
}

TEST_F(BranchListTest, OpenBranchThatIsNotListed_LeavesNothingSelected)
{
    GivenBranches({{u"Smiths", u"LfgDat_A"}}, u"LfgDat_B");

    EXPECT_EQ(P.Form8->List1.ListIndex.value(), -1);
}

TEST_F(BranchListTest, NameIsWhatStandsBeforeTheFirstEqualsSign)
{
    GivenBranches({{u"a=b", u"LfgDat_A"}, {u"", u"LfgDat_B"}});

    EXPECT_EQ(Names(), (QStringList{u"a"_s, u""_s}));
}

TEST_F(BranchListTest, EntryWithoutEqualsSign_EndsTheList_ButNotTheSearchForTheOpenBranch)
{
    GivenBranches({{u"Smiths", u"LfgDat_A"}, {u"broken,Smiths", u"LfgDat_B"}}, u"LfgDat_B");

    EXPECT_EQ(Names(), QStringList{u"Smiths"_s});
    EXPECT_EQ(Selected(), u"Smiths"_s);
}

TEST_F(BranchListTest, EmptyEntry_EndsTheListAndTheSearch)
{
    GivenBranches({{u"Smiths", u"LfgDat_A"}, {u",Jones", u"LfgDat_B"}, {u"Brown", u"LfgDat_C"}}, u"LfgDat_C");

    EXPECT_EQ(Names().value(0), u"Smiths"_s);
    EXPECT_FALSE(Names().contains(u"Brown"_s));
    EXPECT_EQ(P.Form8->List1.ListIndex.value(), -1);
}

TEST_F(BranchListTest, EntryThatIsADirectoryAlone_HasNoNameToSelect)
{
    Home.WriteFile(u"AliasList.cfg", "[Alias]\r\n[LfgDat_A,]\r\n[CFG]\r\n[1,]\r\n");
    P.Branch.WorkDir = P.Branch.HomeDir + u"LfgDat_A";

    P.Form8.Load();

    EXPECT_EQ(Names(), QStringList());
    EXPECT_EQ(P.Form8->List1.ListIndex.value(), -1);
}

TEST_F(BranchListTest, AnotherFilling_ReplacesNamesAndSelection)
{
    GivenBranches({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}}, u"LfgDat_B");
    P.Branch.WorkDir.clear();

    GivenBranches({{u"Adams", u"LfgDat_C"}, {u"Brown", u"LfgDat_D"}});

    EXPECT_EQ(Names(), (QStringList{u"Adams"_s, u"Brown"_s}));
    EXPECT_EQ(P.Form8->List1.ListIndex.value(), -1);
}

TEST_F(BranchListTest, NinetyNineEntries_AreListed_TheHundredthIsSubscriptOutOfRange)
{
    std::vector<Alias> branches(99, Alias(u"Smiths", u"LfgDat_A"));
    GivenBranches(branches);
    EXPECT_EQ(Names().size(), 99);

    branches.emplace_back(u"Last", u"LfgDat_B");
    EXPECT_EQ(RefusalOf([&] { GivenBranches(branches); }), ErrorNumber::Subscript);
}

} // namespace
} // namespace lineforge
