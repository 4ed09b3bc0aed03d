#include "support/TemporaryHome.h"

#include "support/ChildProcess.h"

#include <QFileInfo>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

TEST(TemporaryHomeTest, Home_GoesWithItsObject_LockedFilesIncluded)
{
    QString path;
    {
        TemporaryHome home;
        path = home.Path();
        home.WriteFile(u"a/b/c.txt", "x");
        home.MakeReadOnly(u"a/b/c.txt");
        home.MakeReadOnly(u"a/b");
        home.MakeReadOnly(u"a");
        EXPECT_TRUE(QFileInfo(path).isDir());
    }
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST(TemporaryHomeTest, Snapshot_HoldsEveryFileAndDirectory)
{
    TemporaryHome home;
    home.WriteFile(u"one.txt", "1");
    home.WriteFile(u"dir/.hidden", "2");
    home.MakeDirectory(u"empty");

    EXPECT_EQ(home.Snapshot(),
              (Tree{{u"one.txt"_s, "1"}, {u"dir"_s, "<dir>"}, {u"dir/.hidden"_s, "2"}, {u"empty"_s, "<dir>"}}));
}

TEST(TemporaryHomeTest, Differences_TellWhatBecameOfTheTree)
{
    TemporaryHome home;
    home.WriteFile(u"changed.txt", "1");
    const QString gone = home.WriteFile(u"gone.txt", "1");
    home.WriteFile(u"same.txt", "1");
    const Tree before = home.Snapshot();
    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());

    home.WriteFile(u"changed.txt", "2");
    home.MakeDirectory(u"new");
    QFile::remove(gone);

    EXPECT_EQ(Differences(before, home.Snapshot()),
              QStringList({u"changed: changed.txt"_s, u"gone: gone.txt"_s, u"new: new"_s}));
}

TEST(TemporaryHomeTest, LockedFile_LosesTheOwnersWriteBit_UntilItIsGivenBack)
{
    TemporaryHome home;
    const QString path = home.WriteFile(u"file.txt", "x");

    home.MakeReadOnly(u"file.txt");
    EXPECT_FALSE(QFile::permissions(path).testFlag(QFileDevice::WriteOwner));
    home.MakeWritable(u"file.txt");
    EXPECT_TRUE(QFile::permissions(path).testFlag(QFileDevice::WriteOwner));
}

TEST(TemporaryHomeTest, ReadingAMissingFile_FailsTheTest)
{
    const TemporaryHome home;
    EXPECT_NONFATAL_FAILURE(home.ReadFile(u"missing.txt"), "missing.txt");
}

TEST(ChildProcessTest, ExitCode_IsTold_AndAKilledChildHasNone)
{
    EXPECT_EQ(ExitCodeInChild([] { return 7; }), 7);
    EXPECT_EQ(ExitCodeInChild([]() -> int { throw 1; }), 255);

    ChildProcess child([]() -> int {
        for (;;) {}
    });
    child.KillNow();
    EXPECT_EQ(child.Wait(), -1);
}

} // namespace
} // namespace lineforge
