#include "program/branch/BranchPaths.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

struct BranchPath {
    QString WorkDir;
    QStringView Name;
    QStringView Letter;
    bool IsImported;
    QStringView Database;
    QStringView MapRead;
    QStringView MapWritten;
    QStringView MapBefore;
};

void PrintTo(const BranchPath& path, std::ostream* out)
{
    PrintTo(path.WorkDir, out);
}

class BranchPathsTest : public testing::TestWithParam<BranchPath>
{
};

TEST_P(BranchPathsTest, Paths_AreMadeOfTheDirectory)
{
    const BranchPath& expected = GetParam();

    EXPECT_EQ(DirectoryName(expected.WorkDir), expected.Name);
    EXPECT_EQ(BranchLetter(expected.WorkDir), expected.Letter);
    EXPECT_EQ(IsImported(expected.WorkDir), expected.IsImported);
    EXPECT_EQ(DatabasePath(expected.WorkDir), expected.Database);
    EXPECT_EQ(MapFileToRead(expected.WorkDir), expected.MapRead);
    EXPECT_EQ(MapFileToWrite(expected.WorkDir, u"/home/"_s, u".cfg"), expected.MapWritten);
    EXPECT_EQ(MapFileToWrite(expected.WorkDir, u"/home/"_s, u".~cf"), expected.MapBefore);
}

INSTANTIATE_TEST_SUITE_P(
    Directories, BranchPathsTest,
    testing::Values(
        BranchPath{u"/home/LfgDat_A"_s, u"LfgDat_A", u"A", false, u"/home/LfgDat_A/LfgDat_A.mdb",
                   u"/home/LfgDat_A/LfgDat_A.cfg", u"/home/LfgDat_A/LfgDat_A.cfg", u"/home/LfgDat_A/LfgDat_A.~cf"},
        // The map of an imported branch is read from one file and written to another.
        BranchPath{u"/home/Import_C"_s, u"Import_C", u"C", true, u"/home/Import_C/LfgDat_C.mdb",
                   u"/home/Import_C/LfgDat_C.cfg", u"/home/Import_C/Import_C.cfg", u"/home/Import_C/Import_C.~cf"},
        BranchPath{u"/home/IMPORT_c"_s, u"IMPORT_c", u"c", true, u"/home/IMPORT_c/LfgDat_c.mdb",
                   u"/home/IMPORT_c/LfgDat_c.cfg", u"/home/IMPORT_c/IMPORT_c.cfg", u"/home/IMPORT_c/IMPORT_c.~cf"},
        BranchPath{u"/Import_X/LfgDat_B"_s, u"LfgDat_B", u"B", false, u"/Import_X/LfgDat_B/LfgDat_B.mdb",
                   u"/Import_X/LfgDat_B/LfgDat_B.cfg", u"/Import_X/LfgDat_B/LfgDat_B.cfg",
                   u"/Import_X/LfgDat_B/LfgDat_B.~cf"}));

TEST(BranchPaths, WithNoBranchOpen_MapIsWrittenAtTheRoot_WhichIsTheHomeDirectory)
{
    EXPECT_EQ(MapFileToWrite(QString(), u"/home/"_s, u".cfg"), u"/home/.cfg"_s);
    EXPECT_EQ(MapFileToWrite(QString(), u"/home/"_s, u".~cf"), u"/home/.~cf"_s);
    EXPECT_EQ(DirectoryName(QString()), QString());
    EXPECT_EQ(BranchLetter(QString()), QString());
    EXPECT_FALSE(IsImported(QString()));
}

TEST(BranchPaths, Sibling_HasTheSamePrefixAndAnotherLetter)
{
    EXPECT_EQ(SiblingDirectory(u"/home/LfgDat_A"_s, u"B"), u"/home/LfgDat_B"_s);
    EXPECT_EQ(SiblingDirectory(u"/home/Import_A"_s, u"B"), u"/home/Import_B"_s);
}

struct DirectoryRow {
    QStringView WorkDir;
    bool IsBranch;
};

class BranchDirectoryTest : public testing::TestWithParam<DirectoryRow>
{
};

TEST_P(BranchDirectoryTest, IsOneOfEitherFamily_RightBeneathTheHome)
{
    EXPECT_EQ(IsBranchDirectory(GetParam().WorkDir.toString(), u"/home/me/"_s), GetParam().IsBranch);
}

INSTANTIATE_TEST_SUITE_P(
    Directories, BranchDirectoryTest,
    testing::Values(DirectoryRow{u"/home/me/LfgDat_A", true}, DirectoryRow{u"/home/me/Import_Z", true},
                    DirectoryRow{u"/home/me/lfgdat_a", true}, DirectoryRow{u"", false},
                    DirectoryRow{u"/home/me", false}, DirectoryRow{u"/home/me/", false},
                    DirectoryRow{u"/home/me/LfgDat_", false}, DirectoryRow{u"/home/me/LfgDat_A/", false},
                    DirectoryRow{u"/home/me/LfgDat_AB", false}, DirectoryRow{u"/home/me/LfgDat_1", true},
                    DirectoryRow{u"/home/me/LfgDat_A\n", false}, DirectoryRow{u"/home/me/x/LfgDat_A", false},
                    DirectoryRow{u"/home/you/LfgDat_A", false}, DirectoryRow{u"/home/me/../LfgDat_A", false},
                    DirectoryRow{u"/home/me/LfgGal_A", false}));

TEST(BranchDirectoryHomeTest, HomeWithoutItsSeparator_HoldsNone)
{
    EXPECT_FALSE(IsBranchDirectory(u"/LfgDat_A"_s, QString()));
    EXPECT_FALSE(IsBranchDirectory(u"/home/meLfgDat_A"_s, u"/home/me"_s));
}

} // namespace
} // namespace lineforge
