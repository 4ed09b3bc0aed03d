#include "faults/FailingDisk.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/DirectoryFiles.h"
#include "platform/files/FileSystem.h"
#include "support/SqliteFile.h"
#include "support/TemporaryHome.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

namespace lineforge
{
namespace
{

class FailingDiskTest : public testing::Test
{
protected:
    TemporaryHome home_;
    FileSystem files_{home_.Path()};
};

TEST_F(FailingDiskTest, TheWriteOfThatNumberFails_AndNoOther)
{
    QFile file(home_.Path(u"file"));
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Unbuffered));
    const FailingDisk failing(home_.Path(), 2, Fault::OneTime);
    EXPECT_EQ(file.write("one"), 3);
    EXPECT_FALSE(failing.HasBegun());
    EXPECT_EQ(file.write("two"), -1);
    EXPECT_EQ(file.write("three"), 5);
    EXPECT_TRUE(failing.HasBegun());
}

TEST_F(FailingDiskTest, AllFromOneOnFail)
{
    QFile file(home_.Path(u"file"));
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Unbuffered));
    const FailingDisk failing(home_.Path(), 1, Fault::FromThatOn);
    EXPECT_EQ(file.write("one"), -1);
    EXPECT_EQ(file.write("two"), -1);
}

TEST_F(FailingDiskTest, FilesElsewhereAreWritten)
{
    const TemporaryHome other;
    QFile file(other.Path(u"file"));
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Unbuffered));
    const FailingDisk failing(home_.Path(), 1, Fault::FromThatOn);
    EXPECT_EQ(file.write("one"), 3);
    EXPECT_FALSE(failing.HasBegun());
}

TEST_F(FailingDiskTest, TheEngine_TheCopiesAndTheFlushes_AreAmongThem)
{
    SqliteFile database(home_.Path(u"a.mdb"));
    home_.WriteFile(u"from/file", "content");
    home_.MakeDirectory(u"to");
    const FailingDisk failing(home_.Path(), 1, Fault::FromThatOn);
    EXPECT_NE(database.Try("CREATE TABLE a (b)"), 0);
    CopyFiles(home_.Path(u"from"), home_.Path(u"to"), [] {});
    EXPECT_FALSE(home_.Exists(u"to/file"));
    EXPECT_THROW(files_.FileCopy(QStringLiteral("from/file"), QStringLiteral("to/file")), RuntimeError);
}

TEST_F(FailingDiskTest, HalfOfAContent_IsTaken_AndTheWriterGoesOn)
{
    QFile file(home_.Path(u"file"));
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Unbuffered));
    const FailingDisk failing(home_.Path(), 1, Fault::OneTime, Refused::Halves);
    EXPECT_EQ(write(file.handle(), "four", 4), 2);
    EXPECT_EQ(write(file.handle(), "four", 4), 4);
    EXPECT_TRUE(failing.HasBegun());
}

TEST_F(FailingDiskTest, WholeContent_GetsThere_ThoughAllOfItIsTakenInHalves)
{
    const QByteArray content(5000, 'x');
    const FailingDisk failing(home_.Path(), 1, Fault::FromThatOn, Refused::Halves);
    files_.Replace(QStringLiteral("file"), content);
    home_.MakeDirectory(u"from");
    home_.MakeDirectory(u"to");
    home_.WriteFile(u"from/file", content);
    CopyFiles(home_.Path(u"from"), home_.Path(u"to"), [] {});
    EXPECT_EQ(home_.ReadFile(u"file"), content);
    EXPECT_EQ(home_.ReadFile(u"to/file"), content);
}

// Each way of changing a name, or of opening a file to write to it.
struct Naming {
    const char* Name;
    bool (*Try)(const TemporaryHome& home);
};

void PrintTo(const Naming& naming, std::ostream* out)
{
    *out << naming.Name;
}

class RefusedNamingTest : public FailingDiskTest, public testing::WithParamInterface<Naming>
{
protected:
    bool Try() { return GetParam().Try(home_); }
};

TEST_P(RefusedNamingTest, IsRefused_AndChangesNothing)
{
    home_.WriteFile(u"file", "content");
    home_.MakeDirectory(u"empty");
    const Tree before = home_.Snapshot();
    {
        const FailingDisk failing(home_.Path(), 1, Fault::FromThatOn, Refused::Names);
        EXPECT_FALSE(Try());
        EXPECT_TRUE(failing.HasBegun());
    }
    EXPECT_EQ(Differences(before, home_.Snapshot()), QStringList());
    EXPECT_TRUE(Try());
}

INSTANTIATE_TEST_SUITE_P(
    Ways, RefusedNamingTest,
    testing::Values(
        Naming{"Write", [](const TemporaryHome& home) { return QFile(home.Path(u"file")).open(QFile::ReadWrite); }},
        Naming{"Make", [](const TemporaryHome& home) { return QFile(home.Path(u"new")).open(QFile::WriteOnly); }},
        Naming{"MakeUnique",
               [](const TemporaryHome& home) {
                   QByteArray name = QFile::encodeName(home.Path(u"XXXXXX"));
                   const int file = mkostemp(name.data(), O_CLOEXEC);
                   return file >= 0 && close(file) == 0;
               }},
        Naming{"Cut", [](const TemporaryHome& home) { return QFile::resize(home.Path(u"file"), 1); }},
        Naming{"Rename",
               [](const TemporaryHome& home) { return QFile::rename(home.Path(u"file"), home.Path(u"new")); }},
        Naming{"Remove", [](const TemporaryHome& home) { return QFile::remove(home.Path(u"file")); }},
        Naming{"RemoveAny",
               [](const TemporaryHome& home) {
                   std::error_code error;
                   return std::filesystem::remove(home.Path(u"file").toStdString(), error);
               }},
        Naming{"MakeDirectory", [](const TemporaryHome& home) { return QDir().mkdir(home.Path(u"new")); }},
        Naming{"RemoveDirectory", [](const TemporaryHome& home) { return QDir().rmdir(home.Path(u"empty")); }}),
    [](const auto& tested) { return std::string(tested.param.Name); });

TEST_F(FailingDiskTest, FilesAreStillRead)
{
    home_.WriteFile(u"file", "content");
    const FailingDisk failing(home_.Path(), 1, Fault::FromThatOn, Refused::Names);
    EXPECT_EQ(files_.Read(QStringLiteral("file")), "content");
    EXPECT_FALSE(failing.HasBegun());
}

} // namespace
} // namespace lineforge
