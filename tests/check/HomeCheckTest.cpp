#include "check/CheckTest.h"
#include "support/ChildProcess.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace lineforge::check
{
namespace
{

using namespace Qt::StringLiterals;

class HomeCheckTest : public CheckTest
{
protected:
    // What somebody finds who has no more rights than anybody else: the verdict, or 254 when he can't be had.
    int VerdictOfAnybody() const
    {
        EXPECT_EQ(chmod(QFile::encodeName(home.Path()).constData(), 0755), 0);
        return ExitCodeInChild([this] {
            constexpr uid_t nobody = 65534;
            if (getuid() == 0 && setuid(nobody) != 0)
                return 254;
            return static_cast<int>(VerdictOf(CheckHome(home.Path())));
        });
    }

    void Forbid(QStringView path) const { EXPECT_EQ(chmod(QFile::encodeName(home.Path(path)).constData(), 0), 0); }

    // What the build makes may be read by anybody and written by its owner.
    static void ExpectNothingIn(const QString& directory)
    {
        const Report report = CheckHome(directory);
        EXPECT_EQ(report.Findings, Found());
        EXPECT_EQ(VerdictOf(report), Verdict::NothingFound);
    }
};

TEST_F(HomeCheckTest, HomeInOrder_GivesNothing_AndTellsWhatWasLookedAt)
{
    const Report report = CheckHome(home.Path());

    EXPECT_EQ(report.Findings, Found());
    EXPECT_EQ(VerdictOf(report), Verdict::NothingFound);
    EXPECT_EQ(report.Seen.Branches, 1);
    EXPECT_EQ(report.Seen.Records, 3);
    EXPECT_EQ(report.Seen.Boxes, 4);
    EXPECT_EQ(report.Seen.Pictures, 3);
    EXPECT_EQ(report.Seen.GalleryFiles, 3);
}

TEST_F(HomeCheckTest, ExampleHome_GivesNothing)
{
    ExpectNothingIn(QStringLiteral(LINEFORGE_BUILD "/example-home"));
    EXPECT_EQ(CheckHome(QStringLiteral(LINEFORGE_BUILD "/example-home")).Seen.Branches, 2);
}

TEST_F(HomeCheckTest, NewHome_GivesNothing)
{
    ExpectNothingIn(QStringLiteral(LINEFORGE_BUILD "/home-files"));
}

TEST_F(HomeCheckTest, HomeThatIsNotThere_IsNotLookedAt)
{
    const Report report = CheckHome(home.Path(u"nowhere"));

    EXPECT_EQ(report.Findings, Found{Of(Kind::Unread, u"", u"", u"there is no such directory")});
    EXPECT_EQ(VerdictOf(report), Verdict::NotWhole);
}

TEST_F(HomeCheckTest, FileForAHome_IsNotLookedAt)
{
    EXPECT_EQ(VerdictOf(CheckHome(home.Path(u"AliasList.cfg"))), Verdict::NotWhole);
}

TEST_F(HomeCheckTest, DirectoryWithoutRegistryAndBranches_IsNoHome)
{
    const Report report = CheckHome(home.MakeDirectory(u"empty"));

    EXPECT_EQ(report.Findings, Found{Of(Kind::Unread, u"", u"", u"there is no home of branches in this directory")});
    EXPECT_EQ(VerdictOf(report), Verdict::NotWhole);
}

TEST_F(HomeCheckTest, HomeThatMayNotBeRead_IsNotLookedAt)
{
    Forbid(u"LfgDat_A");
    Forbid(u"AliasList.cfg");
    EXPECT_EQ(VerdictOfAnybody(), static_cast<int>(Verdict::NotWhole));
}

class ClosedPlaceTest : public HomeCheckTest, public testing::WithParamInterface<QStringView>
{
};

TEST_P(ClosedPlaceTest, IsTold_AndTheCheckIsNotWhole)
{
    ASSERT_EQ(VerdictOfAnybody(), static_cast<int>(Verdict::NothingFound));
    Forbid(GetParam());
    EXPECT_EQ(VerdictOfAnybody(), static_cast<int>(Verdict::NotWhole));
}

INSTANTIATE_TEST_SUITE_P(Home, ClosedPlaceTest,
                         testing::Values(u"AliasList.cfg", u"LfgDat_A", u"LfgDat_A/LfgDat_A.mdb",
                                         u"LfgDat_A/LfgDat_A.cfg", u"LfgDat_A/A002Sub.jpg", u"LfgDat_A/LfgGal_A",
                                         u"LfgDat_A/LfgGal_A/A001_01.jpg", u"LfgDat_A/LfgGal_A/A001_2.txt"));

TEST_F(HomeCheckTest, PlacesThatNobodyCanRead_AreTold)
{
    // Not even root can.
    ASSERT_TRUE(QFile::remove(home.Path(database)));
    ASSERT_EQ(mkfifo(QFile::encodeName(home.Path(database)).constData(), 0600), 0);
    ASSERT_TRUE(QFile::remove(home.Path(u"LfgDat_A/A002Sub.jpg")));
    ASSERT_TRUE(QFile::link(home.Path(u"nowhere"), home.Path(u"LfgDat_A/A002Sub.jpg")));
    ASSERT_TRUE(QDir(home.Path(u"LfgDat_A/LfgGal_A")).removeRecursively());
    home.WriteFile(u"LfgDat_A/LfgGal_A", "no directory");

    const Report report = CheckHome(home.Path());

    EXPECT_EQ(report.Findings,
              (Found{Of(Kind::Unread, u"LfgDat_A/A002Sub.jpg", u"", u"this is no file, or leads to none"),
                     Of(Kind::Unread, u"LfgDat_A/LfgDat_A.mdb", u"", u"this is no file, or leads to none"),
                     Of(Kind::Unread, u"LfgDat_A/LfgGal_A", u"", u"this directory can't be read")}));
    EXPECT_EQ(VerdictOf(report), Verdict::NotWhole);
}

TEST_F(HomeCheckTest, NotesAlone_LeaveTheHomeInOrder)
{
    Sql("INSERT INTO Tree99 (File) VALUES ('Z001')");
    const Report report = CheckHome(home.Path());
    EXPECT_FALSE(report.Findings.empty());
    EXPECT_EQ(VerdictOf(report), Verdict::NothingFound);
}

TEST_F(HomeCheckTest, NamesOfOtherCase_AreTheSameFiles)
{
    QDir directory(home.Path());
    ASSERT_TRUE(directory.rename(u"LfgDat_A/LfgDat_A.mdb"_s, u"LfgDat_A/LFGDAT_A.MDB"_s));
    ASSERT_TRUE(directory.rename(u"LfgDat_A/LfgGal_A"_s, u"LfgDat_A/lfggal_a"_s));
    ASSERT_TRUE(directory.rename(u"LfgDat_A/A002Sub.jpg"_s, u"LfgDat_A/a002SUB.JPG"_s));
    ASSERT_TRUE(directory.rename(u"LfgDat_A"_s, u"lfgdat_a"_s));
    ASSERT_TRUE(directory.rename(u"AliasList.cfg"_s, u"ALIASLIST.CFG"_s));
    EXPECT_EQ(Findings(), Found());
}

// An imported branch keeps the names of its files, and is of a family of its own.
TEST_F(HomeCheckTest, ImportedBranch_IsLookedAtAsTheProgramDoes)
{
    WriteAliasList(home, {{u"Smiths", u"LfgDat_A"}, {u"Other Smiths", u"Import_A"}});
    BranchBuilder(home, u'A')
        .InDirectory(u"Import_A")
        .Row({{u"File", u"A001"}, {u"FatherRec", u"A002"}})
        .Boxes(u"1200,600,255,A001,John,")
        .Picture(u"A001", Qt::red)
        .Gallery()
        .Build();
    home.WriteFile(u"Import_A/Import_A.cfg",
                   MapFileBytes(u"Import_A", u"1200,600,255,A003,Ann,", u"0,0,0,", u"0,0,0,"));

    EXPECT_EQ(
        Findings(),
        (Found{Of(Kind::Box, u"Import_A/Import_A.cfg", u"A003", u"box 1 stands for this record, which isn't there"),
               Of(Kind::Link, u"Import_A/LfgDat_A.mdb", u"A001", u"FatherRec leads to A002, which isn't there")}));
}

} // namespace
} // namespace lineforge::check
