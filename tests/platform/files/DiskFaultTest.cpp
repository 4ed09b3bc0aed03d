#include "platform/base/RuntimeError.h"
#include "platform/files/FileSystem.h"
#include "platform/files/TextFile.h"
#include "platform/store/Recordset.h"
#include "support/ChildProcess.h"
#include "support/Refusal.h"
#include "support/SmallDisk.h"
#include "support/SqliteFile.h"
#include "support/TemporaryHome.h"

#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

// What happens when the disk refuses in the middle of a write. Each fault is made in a child process, because limits
// and mounts can't be taken back.
namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

constexpr int limitBytes = 64 * 1024;

class FileSizeLimitTest : public testing::Test
{
protected:
    // What a change of the files is refused with where no file may grow beyond the limit, 0 if it isn't.
    template <class Change>
    int RefusalUnderLimit(rlim_t bytes, Change&& change)
    {
        return ExitCodeInChild([&] {
            LimitFileSize(bytes);
            return RefusalOf(change);
        });
    }

    TemporaryHome home;
    FileSystem files{home.Path()};
};

TEST_F(FileSizeLimitTest, ReplaceThatFails_KeepsTheOldFile_AndLeavesNoNeighbour)
{
    home.WriteFile(u"AliasList.cfg", "old");
    const Tree before = home.Snapshot();

    const int refusal =
        RefusalUnderLimit(limitBytes, [&] { files.Replace(u"AliasList.cfg"_s, QByteArray(2 * limitBytes, 'x')); });

    EXPECT_EQ(refusal, ErrorNumber::DeviceIo);
    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
}

// So little that it waits in a buffer until the file is closed.
TEST_F(FileSizeLimitTest, SmallReplaceThatFails_KeepsTheOldFile_AndTells)
{
    home.WriteFile(u"AliasList.cfg", "old");
    const Tree before = home.Snapshot();

    EXPECT_EQ(RefusalUnderLimit(10, [&] { files.Replace(u"AliasList.cfg"_s, QByteArray(100, 'x')); }),
              ErrorNumber::DeviceIo);
    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
}

TEST_F(FileSizeLimitTest, FileCopyThatFails_KeepsTheOldFile)
{
    home.WriteFile(u"large.jpg", QByteArray(3 * limitBytes, 'x'));
    home.WriteFile(u"picture.jpg", "old");
    const Tree before = home.Snapshot();

    EXPECT_EQ(RefusalUnderLimit(limitBytes, [&] { files.FileCopy(u"large.jpg"_s, u"picture.jpg"_s); }),
              ErrorNumber::DeviceIo);
    EXPECT_EQ(RefusalUnderLimit(limitBytes, [&] { files.FileCopy(u"large.jpg"_s, u"new.jpg"_s); }),
              ErrorNumber::DeviceIo);
    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
}

TEST_F(FileSizeLimitTest, TextThatFails_KeepsTheOldFile)
{
    home.WriteFile(u"LfgDat_A.cfg", "old");
    const Tree before = home.Snapshot();

    EXPECT_EQ(RefusalUnderLimit(10, [&] { WriteTextLines(files, u"LfgDat_A.cfg"_s, {QString(100, u'x')}); }),
              ErrorNumber::DeviceIo);
    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
}

TEST_F(FileSizeLimitTest, SmallEnoughFile_IsWritten)
{
    EXPECT_EQ(RefusalUnderLimit(limitBytes, [&] { files.Replace(u"a.txt"_s, "small"); }), 0);
    EXPECT_EQ(home.ReadFile(u"a.txt"), "small");
}

// The exit codes that the child tells its findings with.
enum Finding { AllAsItShouldBe = 0, NotRefused, WrongNumber, OldFileLost, NeighbourLeft };

class FullDiskTest : public testing::Test
{
protected:
    // Runs the story on a disk that is nearly full. Where no disk can be had, one that takes no file of more than 64 kB
    // has to do: then a refusal has another number, and all else is the same.
    template <class Story>
    int FindingOnSmallDisk(Story&& story)
    {
        const QString directory = home.MakeDirectory(u"disk");
        return ExitCodeInChild([&] {
            const bool isMounted = MountSmallDisk(directory, limitBytes);
            if (!isMounted)
                LimitFileSize(limitBytes);
            return static_cast<int>(story(isMounted ? ErrorNumber::DiskFull : ErrorNumber::DeviceIo));
        });
    }

    TemporaryHome home;
    FileSystem files{home.Path()};
};

TEST_F(FullDiskTest, Replace_IsRefusedAsDiskFull_AndTheOldFileStays)
{
    const int finding = FindingOnSmallDisk([&](int number) {
        files.Replace(u"disk/map.cfg"_s, "old");
        const int refusal = RefusalOf([&] { files.Replace(u"disk/map.cfg"_s, QByteArray(200'000, 'x')); });
        if (refusal == 0)
            return NotRefused;
        if (refusal != number)
            return WrongNumber;
        if (files.Read(u"disk/map.cfg"_s) != "old")
            return OldFileLost;
        return files.Files(u"disk/*"_s).size() == 1 ? AllAsItShouldBe : NeighbourLeft;
    });

    EXPECT_EQ(finding, AllAsItShouldBe);
}

TEST_F(FullDiskTest, SmallReplaceOnFullDisk_IsRefusedToo)
{
    const int finding = FindingOnSmallDisk([&](int number) {
        files.Replace(u"disk/map.cfg"_s, "old");
        // The directory entry fits, its content doesn't.
        files.Replace(u"disk/filler"_s, QByteArray(56 * 1024, 'x'));
        const int refusal = RefusalOf([&] { files.Replace(u"disk/map.cfg"_s, QByteArray(9'000, 'x')); });
        // With a limit on single files alone this one fits.
        if (number == ErrorNumber::DiskFull && refusal == 0)
            return NotRefused;
        if (refusal != 0 && refusal != number)
            return WrongNumber;
        return refusal != 0 && files.Read(u"disk/map.cfg"_s) != "old" ? OldFileLost : AllAsItShouldBe;
    });

    EXPECT_EQ(finding, AllAsItShouldBe);
}

TEST_F(FullDiskTest, FileCopy_IsRefusedAsDiskFull_AndTheOldFileStays)
{
    home.WriteFile(u"large.jpg", QByteArray(200'000, 'x'));

    const int finding = FindingOnSmallDisk([&](int number) {
        files.Replace(u"disk/picture.jpg"_s, "old");
        const int refusal = RefusalOf([&] { files.FileCopy(u"large.jpg"_s, u"disk/picture.jpg"_s); });
        if (refusal == 0)
            return NotRefused;
        if (refusal != number)
            return WrongNumber;
        if (files.Read(u"disk/picture.jpg"_s) != "old")
            return OldFileLost;
        return files.Files(u"disk/*"_s).size() == 1 ? AllAsItShouldBe : NeighbourLeft;
    });

    EXPECT_EQ(finding, AllAsItShouldBe);
}

TEST_F(FullDiskTest, UpdateOfARecord_IsRefused_AndTheRecordKeepsItsText)
{
    home.MakeDirectory(u"disk");
    const QString source = home.Path(u"people.db");
    SqliteFile(source).Execute("CREATE TABLE People (Notes TEXT); INSERT INTO People VALUES ('old')");

    const int finding = FindingOnSmallDisk([&](int number) {
        files.FileCopy(source, u"disk/people.db"_s);
        Databases databases;
        Recordset people(databases.Open(files, u"disk/people.db"_s), u"People"_s);
        people.Edit();
        people.Put(u"Notes", QString(200'000, u'x'));
        const int refusal = RefusalOf([&] { people.Update(); });
        if (refusal == 0)
            return NotRefused;
        if (refusal != number)
            return WrongNumber;
        Recordset again(databases.Open(files, u"disk/people.db"_s), u"People"_s);
        return again.Text(u"Notes") == u"old" ? AllAsItShouldBe : OldFileLost;
    });

    EXPECT_EQ(finding, AllAsItShouldBe);
}

TEST(UnreadableFileTest, File_IsPermissionDenied_ForWhoeverMayNotReadIt)
{
    TemporaryHome home;
    const FileSystem files(home.Path());
    const QString path = home.WriteFile(u"secret.txt", "x");
    ASSERT_TRUE(QFile::setPermissions(path, {}));
    ASSERT_EQ(chmod(QFile::encodeName(home.Path()).constData(), 0755), 0);

    const int refusal = ExitCodeInChild([&] {
        constexpr uid_t nobody = 65534;
        // The administrator may read everything, so that he has to be somebody else here.
        if (getuid() == 0 && setuid(nobody) != 0)
            return 254;
        return RefusalOf([&] { files.Read(u"secret.txt"_s); });
    });

    EXPECT_EQ(refusal, ErrorNumber::PermissionDenied);
}

} // namespace
} // namespace lineforge
