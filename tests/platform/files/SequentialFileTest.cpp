#include "platform/files/SequentialFile.h"

#include "platform/base/RuntimeError.h"
#include "support/ChildProcess.h"
#include "support/Refusal.h"
#include "support/SmallDisk.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class SequentialFileTest : public testing::Test
{
protected:
    int RefusalToOpen(const QString& path)
    {
        return RefusalOf([&] { SequentialFile(files, path); });
    }

    TemporaryHome home;
    FileSystem files{home.Path()};
};

TEST_F(SequentialFileTest, Opened_ItIsThere_AndWhatStoodThereIsGone)
{
    home.WriteFile(u"list.txt", "old");
    const SequentialFile file(files, u"list.txt"_s);
    EXPECT_EQ(home.ReadFile(u"list.txt"), QByteArray());
}

TEST_F(SequentialFileTest, Lines_AreUtf8_WithTheirEnds_AndBytesAreAsTheyAre)
{
    SequentialFile file(files, u"list.txt"_s);
    file.Line(u"Zo\u00eb \u20ac \U0001F600");
    file.Line({});
    file.Write("\xFF raw \r");
    file.Write({});
    file.Line(u"end");
    file.Close();
    EXPECT_EQ(home.ReadFile(u"list.txt"), "Zo\xC3\xAB \xE2\x82\xAC \xF0\x9F\x98\x80\r\n\r\n\xFF raw \rend\r\n");
}

TEST_F(SequentialFileTest, GoneUnclosed_KeepsWhatWasWritten)
{
    {
        SequentialFile file(files, u"list.txt"_s);
        file.Line(u"one");
    }
    EXPECT_EQ(home.ReadFile(u"list.txt"), "one\r\n");
}

TEST_F(SequentialFileTest, File_KeepsItsSpelling_AndItsDirectory)
{
    home.WriteFile(u"List.TXT", "old");
    home.MakeDirectory(u"other");
    SequentialFile file(files, u"list.txt"_s);
    files.ChDir(u"other"_s);
    file.Line(u"one");
    file.Close();
    EXPECT_EQ(home.ReadFile(u"List.TXT"), "one\r\n");
    EXPECT_FALSE(home.Exists(u"other/list.txt"));
}

TEST_F(SequentialFileTest, WhatCanNotBeOpened_IsRefused_AndStays)
{
    home.WriteFile(u"locked.txt", "old");
    home.MakeReadOnly(u"locked.txt");
    home.MakeDirectory(u"closed");
    home.MakeReadOnly(u"closed");
    const Tree before = home.Snapshot();

    EXPECT_EQ(RefusalToOpen(u"missing/list.txt"_s), ErrorNumber::PathNotFound);
    EXPECT_EQ(RefusalToOpen(u"closed"_s), ErrorNumber::PathFileAccess);
    EXPECT_EQ(RefusalToOpen(u"closed/list.txt"_s), ErrorNumber::PathFileAccess);
    EXPECT_EQ(RefusalToOpen(u"locked.txt"_s), ErrorNumber::PathFileAccess);

    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
    home.MakeWritable(u"closed");
}

TEST_F(SequentialFileTest, FileThatMayBeWrittenInADirectoryThatMayNot_IsOpened)
{
    home.WriteFile(u"closed/list.txt", "old");
    home.MakeReadOnly(u"closed");
    EXPECT_EQ(RefusalToOpen(u"closed/list.txt"_s), 0);
    EXPECT_EQ(home.ReadFile(u"closed/list.txt"), QByteArray());
    home.MakeWritable(u"closed");
}

TEST_F(SequentialFileTest, DiskThatTakesNoMore_IsToldByAWriteOrByClose_AndWhatItTookStays)
{
    constexpr int limit = 4096;
    for (const int bytes : {5000, 1'000'000}) {
        const int refusal = ExitCodeInChild([&] {
            LimitFileSize(limit);
            SequentialFile file(files, u"list.txt"_s);
            return RefusalOf([&] {
                for (int written = 0; written < bytes; written += 100)
                    file.Write(QByteArray(100, 'x'));
                file.Close();
            });
        });
        EXPECT_EQ(refusal, ErrorNumber::DeviceIo);
        EXPECT_EQ(home.ReadFile(u"list.txt"), QByteArray(limit, 'x'));
    }
}

TEST_F(SequentialFileTest, FullDisk_HasItsOwnNumber)
{
    const QString directory = home.MakeDirectory(u"disk");
    const int refusal = ExitCodeInChild([&] {
        constexpr int size = 64 * 1024;
        if (!MountSmallDisk(directory, size))
            return ErrorNumber::DiskFull; // none can be had here
        SequentialFile file(files, u"disk/list.txt"_s);
        return RefusalOf([&] {
            file.Write(QByteArray(2 * size, 'x'));
            file.Close();
        });
    });
    EXPECT_EQ(refusal, ErrorNumber::DiskFull);
}

} // namespace
} // namespace lineforge
