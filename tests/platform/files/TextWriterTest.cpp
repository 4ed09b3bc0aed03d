#include "platform/base/RuntimeError.h"
#include "platform/files/TextFile.h"
#include "support/ChildProcess.h"
#include "support/Refusal.h"
#include "support/TemporaryHome.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class TextWriterTest : public testing::Test
{
protected:
    TemporaryHome home;
    FileSystem files{home.Path()};
};

TEST_F(TextWriterTest, BeforeItIsClosed_ThereIsNoFile)
{
    TextWriter file(files, u"list.txt"_s);
    file.Line(u"one");
    EXPECT_TRUE(home.Snapshot().isEmpty());

    file.Close();
    EXPECT_EQ(home.ReadFile(u"list.txt"), "one\r\n");
}

TEST_F(TextWriterTest, WriterThatGoesUnclosed_LeavesWhatStoodThere)
{
    home.WriteFile(u"list.txt", "old");
    const Tree before = home.Snapshot();
    {
        TextWriter file(files, u"list.txt"_s);
        file.Line(u"new");
    }
    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
}

TEST_F(TextWriterTest, Lines_AreUtf8_EachWithCarriageReturnAndLineFeed)
{
    TextWriter file(files, u"list.txt"_s);
    file.Line(u"Zo\u00eb \u20ac \U0001F600");
    file.Line({});
    file.Line(u"two\nlines");
    file.Close();

    EXPECT_EQ(home.ReadFile(u"list.txt"), "Zo\xC3\xAB \xE2\x82\xAC \xF0\x9F\x98\x80\r\n\r\ntwo\nlines\r\n");
}

TEST_F(TextWriterTest, NoLines_MakeAnEmptyFile)
{
    home.WriteFile(u"list.txt", "old");
    TextWriter(files, u"list.txt"_s).Close();
    EXPECT_EQ(home.ReadFile(u"list.txt"), QByteArray());
}

TEST_F(TextWriterTest, FileThatStoodThere_IsReplaced_UnderItsOwnSpelling)
{
    home.WriteFile(u"List.TXT", "a much longer text than the new one");
    TextWriter file(files, u"list.txt"_s);
    file.Line(u"new");
    file.Close();

    EXPECT_EQ(home.Snapshot(), (Tree{{u"List.TXT"_s, "new\r\n"}}));
}

TEST_F(TextWriterTest, RelativePath_IsTakenFromTheDirectoryThatWasCurrentAtFirst)
{
    home.MakeDirectory(u"other");
    TextWriter file(files, u"list.txt"_s);
    files.ChDir(u"other"_s);
    file.Line(u"one");
    file.Close();

    EXPECT_TRUE(home.Exists(u"list.txt"));
    EXPECT_FALSE(home.Exists(u"other/list.txt"));
}

TEST_F(TextWriterTest, RefusedClose_KeepsTheOldFileWhole)
{
    home.WriteFile(u"list.txt", "old");
    home.MakeReadOnly(u"list.txt");
    const Tree before = home.Snapshot();
    TextWriter file(files, u"list.txt"_s);
    file.Line(u"new");

    EXPECT_NE(RefusalOf([&] { file.Close(); }), 0);
    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());

    home.MakeWritable(u"list.txt");
    file.Close();
    EXPECT_EQ(home.ReadFile(u"list.txt"), "new\r\n") << "and what was written is still there for another try";
}

TEST_F(TextWriterTest, DirectoryThatIsMissing_IsToldByClose)
{
    TextWriter file(files, u"missing/list.txt"_s);
    file.Line(u"new");

    EXPECT_EQ(RefusalOf([&] { file.Close(); }), ErrorNumber::PathNotFound);
    EXPECT_TRUE(home.Snapshot().isEmpty());
}

TEST_F(TextWriterTest, DiskThatRefusesInTheMiddle_KeepsTheOldFile)
{
    home.WriteFile(u"list.txt", "old");
    const Tree before = home.Snapshot();

    const int refusal = ExitCodeInChild([&] {
        constexpr rlimit limit{4096, 4096};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0 || std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR)
            return 254;
        TextWriter file(files, u"list.txt"_s);
        for (int line = 0; line < 1000; ++line)
            file.Line(u"a line that the disk has no room for");
        return RefusalOf([&] { file.Close(); });
    });

    EXPECT_EQ(refusal, ErrorNumber::DeviceIo);
    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
}

} // namespace
} // namespace lineforge
