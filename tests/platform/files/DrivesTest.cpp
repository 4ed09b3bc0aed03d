#include "platform/files/Drives.h"

#include "platform/files/DirectoryRows.h"
#include "support/TemporaryHome.h"

#include <QDir>
#include <QSet>

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

TEST(DrivesTest, Root_ThenTheUsersDirectory_ThenVolumes_EachADirectoryAndOnce)
{
    const QStringList drives = Drives();

    EXPECT_EQ(drives.first(), u"/"_s);
    EXPECT_EQ(drives.value(QDir::homePath() == u"/"_s ? 0 : 1), QDir::homePath());
    EXPECT_EQ(QSet<QString>(drives.begin(), drives.end()).size(), drives.size());
    for (const QString& drive : drives) {
        EXPECT_TRUE(QDir(drive).exists()) << qUtf8Printable(drive);
        EXPECT_FALSE(drive.startsWith(u"/proc"_s) || drive.startsWith(u"/sys"_s)) << qUtf8Printable(drive);
    }
}

struct DriveRow {
    QStringView Path;
    QStringView Drive;
};
class DriveOfTest : public testing::TestWithParam<DriveRow>
{
};

TEST_P(DriveOfTest, TheDeepestThatHoldsThePath)
{
    const QStringList drives{u"/"_s, u"/home/me"_s, u"/media/stick"_s};
    EXPECT_EQ(DriveOf(GetParam().Path.toString(), drives), GetParam().Drive);
}

INSTANTIATE_TEST_SUITE_P(Paths, DriveOfTest,
                         testing::Values(DriveRow{u"/home/me/Lineforge", u"/home/me"},
                                         DriveRow{u"/home/me", u"/home/me"}, DriveRow{u"/home/melanie", u"/"},
                                         DriveRow{u"/", u"/"}, DriveRow{u"/media/stick/a/b", u"/media/stick"}));

TEST(DirectoryRowsTest, FromTheRootDown_ThenTheDirectoriesInIt_ByName)
{
    TemporaryHome home;
    home.MakeDirectory(u"here/beta");
    home.MakeDirectory(u"here/Alpha");
    home.MakeDirectory(u"here/.hidden");
    home.WriteFile(u"here/file.txt", "x");

    const std::vector<DirectoryRow> rows = DirectoryRows(home.Path(u"here"));

    EXPECT_EQ(rows.front().Path, u"/"_s);
    ASSERT_GE(rows.size(), 4u);
    const std::size_t count = rows.size();
    EXPECT_EQ(rows[count - 3].Path, home.Path(u"here"));
    EXPECT_TRUE(rows[count - 3].IsOpen);
    EXPECT_EQ(rows[count - 2].Name, u"Alpha"_s);
    EXPECT_EQ(rows[count - 2].Depth, rows[count - 3].Depth + 1);
    EXPECT_FALSE(rows[count - 2].IsOpen);
    EXPECT_EQ(rows[count - 1].Path, home.Path(u"here/beta"));
}

TEST(DirectoryRowsTest, Root_StandsAlone)
{
    const std::vector<DirectoryRow> rows = DirectoryRows(u"/"_s);

    EXPECT_EQ(rows.front().Path, u"/"_s);
    ASSERT_GT(rows.size(), 1u);
    EXPECT_EQ(rows[1].Depth, 1);
    EXPECT_FALSE(rows[1].IsOpen);
}

} // namespace
} // namespace lineforge
