#include "faults/FailingWrites.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/DirectoryFiles.h"
#include "platform/files/FileSystem.h"
#include "support/SqliteFile.h"
#include "support/TemporaryHome.h"

#include <QFile>

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{

class FailingWritesTest : public testing::Test
{
protected:
    TemporaryHome home_;
    FileSystem files_{home_.Path()};
};

TEST_F(FailingWritesTest, TheWriteOfThatNumberFails_AndNoOther)
{
    QFile file(home_.Path(u"file"));
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Unbuffered));
    const FailingWrites failing(home_.Path(), 2, Fault::OneWrite);
    EXPECT_EQ(file.write("one"), 3);
    EXPECT_FALSE(failing.HaveBegun());
    EXPECT_EQ(file.write("two"), -1);
    EXPECT_EQ(file.write("three"), 5);
    EXPECT_TRUE(failing.HaveBegun());
}

TEST_F(FailingWritesTest, AllFromOneOnFail)
{
    QFile file(home_.Path(u"file"));
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Unbuffered));
    const FailingWrites failing(home_.Path(), 1, Fault::FromThatOn);
    EXPECT_EQ(file.write("one"), -1);
    EXPECT_EQ(file.write("two"), -1);
}

TEST_F(FailingWritesTest, FilesElsewhereAreWritten)
{
    const TemporaryHome other;
    QFile file(other.Path(u"file"));
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Unbuffered));
    const FailingWrites failing(home_.Path(), 1, Fault::FromThatOn);
    EXPECT_EQ(file.write("one"), 3);
    EXPECT_FALSE(failing.HaveBegun());
}

TEST_F(FailingWritesTest, TheEngine_TheCopiesAndTheFlushes_AreAmongThem)
{
    SqliteFile database(home_.Path(u"a.mdb"));
    home_.WriteFile(u"from/file", "content");
    home_.MakeDirectory(u"to");
    const FailingWrites failing(home_.Path(), 1, Fault::FromThatOn);
    EXPECT_NE(database.Try("CREATE TABLE a (b)"), 0);
    CopyFiles(home_.Path(u"from"), home_.Path(u"to"), [] {});
    EXPECT_FALSE(home_.Exists(u"to/file"));
    EXPECT_THROW(files_.FileCopy(QStringLiteral("from/file"), QStringLiteral("to/file")), RuntimeError);
}

} // namespace
} // namespace lineforge
