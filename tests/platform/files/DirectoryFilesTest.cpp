#include "platform/files/DirectoryFiles.h"

#include "support/ChildProcess.h"
#include "support/TemporaryHome.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimeZone>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class DirectoryFilesTest : public testing::Test
{
protected:
    DirectoryFilesTest()
    {
        Home.MakeDirectory(u"from");
        Home.MakeDirectory(u"to");
    }

    void Copy()
    {
        CopyFiles(Home.Path(u"from"), Home.Path(u"to"), [this] { ++Steps; });
    }
    void Remove(QStringView directory) { RemoveWithFiles(Home.Path(directory), Home.Path()); }
    void Link(QStringView target, QStringView name) { ASSERT_TRUE(QFile::link(Home.Path(target), Home.Path(name))); }

    // All of them, hidden and broken ones too.
    QStringList Entries(QStringView directory)
    {
        return QDir(Home.Path(directory))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    TemporaryHome Home;
    int Steps = 0;
};

TEST_F(DirectoryFilesTest, Copy_TakesContentAndTime_HiddenFilesToo)
{
    Home.WriteFile(u"from/a.txt", "one");
    Home.WriteFile(u"from/.b", QByteArray(3'000'001, 'b'));
    Home.WriteFile(u"from/empty", "");
    const QDateTime then(QDate(2001, 2, 3), QTime(4, 5, 6), QTimeZone::utc());
    QFile file(Home.Path(u"from/a.txt"));
    ASSERT_TRUE(file.open(QFile::ReadWrite) && file.setFileTime(then, QFileDevice::FileModificationTime));
    file.close();

    Copy();

    EXPECT_EQ(Home.ReadFile(u"to/a.txt"), "one");
    EXPECT_EQ(Home.ReadFile(u"to/.b"), QByteArray(3'000'001, 'b'));
    EXPECT_EQ(Home.ReadFile(u"to/empty"), "");
    EXPECT_EQ(QFileInfo(Home.Path(u"to/a.txt")).lastModified(), then);
    EXPECT_GE(Steps, 6); // a file each, and at every megabyte of the large one
}

TEST_F(DirectoryFilesTest, Copy_LeavesDirectoriesAndWhatIsNoFile)
{
    Home.WriteFile(u"from/deeper/a.txt", "one");
    ASSERT_EQ(mkfifo(Home.Path(u"from/pipe").toLocal8Bit().constData(), 0600), 0);
    Link(u"nowhere", u"from/broken");

    Copy();

    EXPECT_EQ(Entries(u"to"), QStringList());
}

TEST_F(DirectoryFilesTest, Copy_OverwritesNothing_AndLeavesNoPartBehind)
{
    Home.WriteFile(u"from/a.txt", "new");
    Home.WriteFile(u"to/a.txt", "old");
    Link(u"nowhere", u"to/b.txt");
    Home.WriteFile(u"from/b.txt", "new");

    Copy();

    EXPECT_EQ(Home.ReadFile(u"to/a.txt"), "old");
    EXPECT_TRUE(QFileInfo(Home.Path(u"to/b.txt")).isSymLink());
    EXPECT_EQ(Entries(u"to"), QStringList({u"a.txt"_s, u"b.txt"_s}));
}

TEST_F(DirectoryFilesTest, Copy_OfWhatCantBeWritten_CanBeWritten)
{
    Home.WriteFile(u"from/a.txt", "one");
    Home.MakeReadOnly(u"from/a.txt");

    Copy();

    EXPECT_TRUE(QFileInfo(Home.Path(u"to/a.txt")).permissions().testFlag(QFileDevice::WriteOwner));
}

TEST_F(DirectoryFilesTest, Copy_IntoOrFromWhatIsntThere_IsQuiet)
{
    Home.WriteFile(u"from/a.txt", "one");
    const Tree before = Home.Snapshot();

    CopyFiles(Home.Path(u"from"), Home.Path(u"gone"), [] {});
    CopyFiles(Home.Path(u"gone"), Home.Path(u"to"), [] {});

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(DirectoryFilesTest, Copy_LeavesWhatACopyThatWasCutOffHasLeft)
{
    Home.WriteFile(u"from/.lineforge-Ab3dEf", "half");

    Copy();

    EXPECT_EQ(Entries(u"to"), QStringList());
}

TEST_F(DirectoryFilesTest, DestinationThatGoesBetweenTwoFiles_EndsTheCopiesQuietly)
{
    Home.WriteFile(u"from/a.txt", "one");
    Home.WriteFile(u"from/b.txt", "two");

    CopyFiles(Home.Path(u"from"), Home.Path(u"to"), [this] { QDir(Home.Path(u"to")).removeRecursively(); });

    EXPECT_FALSE(Home.Exists(u"to"));
    EXPECT_EQ(Home.ReadFile(u"from/b.txt"), "two");
}

TEST_F(DirectoryFilesTest, SourceThatGoesBetweenTwoFiles_LeavesWhatWasCopiedWhole)
{
    Home.WriteFile(u"from/a.txt", "one");
    Home.WriteFile(u"from/b.txt", "two");

    CopyFiles(Home.Path(u"from"), Home.Path(u"to"), [this] { QDir(Home.Path(u"from")).removeRecursively(); });

    EXPECT_EQ(Entries(u"to"), QStringList{u"a.txt"_s});
    EXPECT_EQ(Home.ReadFile(u"to/a.txt"), "one");
}

// Root reads everything, so the reading is done by somebody else.
TEST_F(DirectoryFilesTest, FileThatMayNotBeRead_IsLeftOut)
{
    Home.WriteFile(u"from/a.txt", "one");
    Home.WriteFile(u"from/b.txt", "two");
    for (const QStringView directory : {u"", u"to", u"from"})
        ASSERT_EQ(chmod(Home.Path(directory).toLocal8Bit().constData(), 0777), 0);
    ASSERT_EQ(chmod(Home.Path(u"from/a.txt").toLocal8Bit().constData(), 0), 0);

    const int failed = ExitCodeInChild([this] {
        if (geteuid() == 0 && seteuid(65534) != 0)
            return 2;
        Copy();
        return 0;
    });

    EXPECT_EQ(failed, 0);
    EXPECT_EQ(Entries(u"to"), QStringList{u"b.txt"_s});
}

TEST_F(DirectoryFilesTest, Remove_TakesAllFiles_AndLeavesDirectories)
{
    Home.WriteFile(u"from/a.txt", "one");
    Home.WriteFile(u"from/.hidden", "two");
    Home.WriteFile(u"from/deeper/b.txt", "three");
    ASSERT_EQ(mkfifo(Home.Path(u"from/pipe").toLocal8Bit().constData(), 0600), 0);

    Remove(u"from");

    EXPECT_EQ(
        Home.Snapshot(),
        (Tree{
            {u"from"_s, "<dir>"}, {u"from/deeper"_s, "<dir>"}, {u"from/deeper/b.txt"_s, "three"}, {u"to"_s, "<dir>"}}));
}

TEST_F(DirectoryFilesTest, Remove_TakesLinks_AndLeavesWhatTheyLeadTo)
{
    Home.WriteFile(u"to/mine.txt", "mine");
    Link(u"to/mine.txt", u"from/file");
    Link(u"nowhere", u"from/broken");
    Link(u"to", u"from/directory");

    Remove(u"from");

    EXPECT_EQ(Home.ReadFile(u"to/mine.txt"), "mine");
    EXPECT_FALSE(QFileInfo(Home.Path(u"from/file")).isSymLink());
    EXPECT_FALSE(QFileInfo(Home.Path(u"from/broken")).isSymLink());
    EXPECT_FALSE(QFileInfo(Home.Path(u"from/directory")).isSymLink());
}

TEST_F(DirectoryFilesTest, Remove_LeavesReadOnlyFiles_AndAllInAReadOnlyDirectory)
{
    Home.WriteFile(u"from/a.txt", "one");
    Home.WriteFile(u"from/b.txt", "two");
    Home.MakeReadOnly(u"from/b.txt");
    Remove(u"from");
    EXPECT_FALSE(Home.Exists(u"from/a.txt"));
    EXPECT_TRUE(Home.Exists(u"from/b.txt"));

    Home.WriteFile(u"from/a.txt", "one");
    Home.MakeReadOnly(u"from");
    Remove(u"from");
    EXPECT_TRUE(Home.Exists(u"from/a.txt"));
    Home.MakeWritable(u"from");
}

TEST_F(DirectoryFilesTest, Remove_NeverGoesThroughALink)
{
    Home.WriteFile(u"to/mine.txt", "mine");
    Home.WriteFile(u"to/inner/mine.txt", "mine");
    Link(u"to", u"linked");
    const Tree before = Home.Snapshot();

    Remove(u"linked");
    Remove(u"linked/inner");

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(DirectoryFilesTest, Remove_NeverLeavesItsHome)
{
    Home.WriteFile(u"from/a.txt", "one");
    Home.WriteFile(u"a.txt", "mine");
    const Tree before = Home.Snapshot();

    RemoveWithFiles(Home.Path(u"from"), Home.Path(u"to"));
    RemoveWithFiles(Home.Path(u"to/../from"), Home.Path(u"to"));
    RemoveWithFiles(Home.Path(), Home.Path());
    RemoveWithFiles(QString(), Home.Path());
    RemoveWithFiles(Home.Path(u"from"), QString());

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(DirectoryFilesTest, Remove_TakesTheEmptyDirectory_ButNotThroughALink)
{
    Home.WriteFile(u"from/a.txt", "one");
    Home.MakeDirectory(u"to/inner");
    Link(u"to", u"linked");

    Remove(u"from");
    Remove(u"linked/inner");
    Remove(u"linked");

    EXPECT_FALSE(Home.Exists(u"from"));
    EXPECT_TRUE(Home.Exists(u"to/inner"));
    EXPECT_TRUE(QFileInfo(Home.Path(u"linked")).isSymLink());
}

TEST_F(DirectoryFilesTest, Remove_LeavesTheDirectoryInAReadOnlyOne)
{
    Home.WriteFile(u"from/inner/a.txt", "one");
    Home.MakeReadOnly(u"from");

    Remove(u"from/inner");

    EXPECT_TRUE(Home.Exists(u"from/inner"));
    EXPECT_FALSE(Home.Exists(u"from/inner/a.txt"));
    Home.MakeWritable(u"from");
}

TEST_F(DirectoryFilesTest, Home_MayItselfBeReachedThroughALink)
{
    Home.WriteFile(u"real/LfgDat_A/a.txt", "one");
    Link(u"real", u"home");

    RemoveWithFiles(Home.Path(u"home/LfgDat_A"), Home.Path(u"home"));

    EXPECT_FALSE(Home.Exists(u"real/LfgDat_A/a.txt"));
}

} // namespace
} // namespace lineforge
