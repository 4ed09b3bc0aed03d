#include "program/branch/SiblingBranch.h"

#include "program/branch/WorkDatabase.h"
#include "support/BranchBuilder.h"
#include "support/ProgramTest.h"

#include <QFile>

#include <algorithm>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class SiblingBranchTest : public ProgramTest
{
protected:
    SiblingBranchTest() { WriteAliasList(Home, {}); }

    void GivenBranch(QChar letter, QStringView prefix = u"LfgDat_")
    {
        BranchBuilder(Home, letter)
            .InDirectory(QString(prefix + QString(letter)))
            .Row({{u"File", QString(letter + u"001"_s)}})
            .Build();
    }

    void GivenOpenBranch(QStringView directory)
    {
        P.Branch.WorkDir = P.Branch.HomeDir + directory;
        OpenWorkDatabase(P);
    }

    void ExpectMissingBoxFor(QStringView database)
    {
        const QString text =
            u"Cannot Access this External Database and subject.\n"_s + Home.Path(database) + u" not present.";
        Prompts.Expect(u"External Record not present.", text, Buttons::Information);
    }

    QString CurrentRecord() { return Records(P.Form3).Text(u"File"); }
};

TEST_F(SiblingBranchTest, Swap_ExchangesBothDirectoriesWithTheSavedOnes)
{
    P.Branch.WorkDir = u"work"_s;
    P.Branch.HomeDir = u"home"_s;
    P.Branch.WorkDirSaved = u"saved work"_s;
    P.Branch.HomeDirSaved = u"saved home"_s;

    SwapBranchDirs(P.Branch);

    EXPECT_EQ(P.Branch.WorkDir, u"saved work"_s);
    EXPECT_EQ(P.Branch.HomeDir, u"saved home"_s);
    EXPECT_EQ(P.Branch.WorkDirSaved, u"work"_s);
    EXPECT_EQ(P.Branch.HomeDirSaved, u"home"_s);
}

TEST_F(SiblingBranchTest, TransportButtons_AreOffUntilTheReturn)
{
    const auto areAll = [this](bool enabled) {
        return std::ranges::all_of(forms::Form3::Transport, [&](Button forms::Form3::*transport) {
            return ((*P.Form3).*transport).Enabled == enabled;
        });
    };
    GivenBranch(u'A');
    GivenBranch(u'B');
    GivenOpenBranch(u"LfgDat_A");
    EXPECT_TRUE(areAll(true));

    SwitchToSibling(P, u"B");
    EXPECT_TRUE(areAll(false));

    ReturnFromSibling(P);
    EXPECT_TRUE(areAll(true));
}

TEST_F(SiblingBranchTest, Switching_PointsAtTheSibling_AndSavesTheMapsOwnDirectories)
{
    GivenBranch(u'A');
    GivenBranch(u'B');
    GivenOpenBranch(u"LfgDat_A");

    SwitchToSibling(P, u"B");

    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Branch.WorkDirSaved, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Branch.HomeDirSaved, P.Branch.HomeDir);
    EXPECT_EQ(P.Branch.sDbaseName.toLower(), Home.Path(u"LfgDat_B/LfgDat_B.mdb").toLower());
    EXPECT_EQ(CurrentRecord(), u"B001"_s);
}

TEST_F(SiblingBranchTest, Switching_LeavesTheMapAsItIs)
{
    GivenBranch(u'A');
    GivenBranch(u'B');
    GivenOpenBranch(u"LfgDat_A");
    P.Map.Owner = P.Branch.WorkDir;
    P.Map.sLinesText = u"1,2,3,4,5,"_s;

    SwitchToSibling(P, u"B");

    EXPECT_EQ(P.Map.Owner, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Map.sLinesText, u"1,2,3,4,5,"_s);
}

TEST_F(SiblingBranchTest, Return_ReversesTheSwitch)
{
    GivenBranch(u'A');
    GivenBranch(u'B');
    GivenOpenBranch(u"LfgDat_A");
    SwitchToSibling(P, u"B");

    ReturnFromSibling(P);

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Branch.HomeDir, P.ExecutableDirectory);
    EXPECT_EQ(CurrentRecord(), u"A001"_s);
}

TEST_F(SiblingBranchTest, ImportedBranch_SwitchesToItsImportedSibling)
{
    GivenBranch(u'A', u"Import_");
    GivenBranch(u'B', u"Import_");
    GivenOpenBranch(u"Import_A");

    SwitchToSibling(P, u"B");

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"Import_B"));
    EXPECT_EQ(CurrentRecord(), u"B001"_s);
}

TEST_F(SiblingBranchTest, SiblingThatIsThere_IsNotTalkedAbout)
{
    GivenBranch(u'A');
    GivenBranch(u'B');
    GivenOpenBranch(u"LfgDat_A");

    EXPECT_TRUE(RequireSibling(P, u"B"));
    EXPECT_TRUE(RequireSibling(P, u"b"));
}

TEST_F(SiblingBranchTest, MissingSibling_IsTold_WithThePathItShouldHave)
{
    GivenBranch(u'A');
    GivenOpenBranch(u"LfgDat_A");
    ExpectMissingBoxFor(u"LfgDat_B/LfgDat_B.mdb");

    EXPECT_FALSE(RequireSibling(P, u"B"));

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
}

TEST_F(SiblingBranchTest, SiblingDirectoryWithoutADatabase_IsMissing)
{
    GivenBranch(u'A');
    GivenOpenBranch(u"LfgDat_A");
    Home.MakeDirectory(u"LfgDat_B");
    ExpectMissingBoxFor(u"LfgDat_B/LfgDat_B.mdb");

    EXPECT_FALSE(RequireSibling(P, u"B"));
}

TEST_F(SiblingBranchTest, MissingSiblingOfAnImportedBranch_IsToldInItsOwnWords)
{
    GivenBranch(u'A', u"Import_");
    GivenBranch(u'B');
    GivenOpenBranch(u"Import_A");
    Prompts.Expect(u"External Import Record not present.", u"Cannot Access External Imported Database subject.",
                   Buttons::Information);

    EXPECT_FALSE(RequireSibling(P, u"B"));

    GivenBranch(u'B', u"Import_");
    EXPECT_TRUE(RequireSibling(P, u"B"));
}

} // namespace
} // namespace lineforge
