#include "platform/base/RuntimeError.h"
#include "platform/files/FileSystem.h"
#include "support/Refusal.h"
#include "support/TemporaryHome.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class FileSystemChangeTest : public testing::Test
{
protected:
    // The action is refused with that number, and nothing on the disk is another than before.
    template <class Action>
    void ExpectRefused(int number, Action&& action)
    {
        const Tree before = home.Snapshot();
        EXPECT_EQ(RefusalOf(action), number);
        EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
    }

    TemporaryHome home;
    FileSystem files{home.Path()};
};

class FileCopyTest : public FileSystemChangeTest
{
};

TEST_F(FileCopyTest, Copy_HasTheSameBytes_AndTheSourceStays)
{
    const QByteArray bytes("one\0two\r\n\xff", 10);
    home.WriteFile(u"from.bin", bytes);

    files.FileCopy(u"from.bin"_s, u"to.bin"_s);

    EXPECT_EQ(home.ReadFile(u"to.bin"), bytes);
    EXPECT_EQ(home.ReadFile(u"from.bin"), bytes);
}

TEST_F(FileCopyTest, LargeFile_IsCopiedWhole)
{
    QByteArray bytes(3 * 1024 * 1024 + 17, 'x');
    bytes[2 * 1024 * 1024] = 'y';
    home.WriteFile(u"from.bin", bytes);

    files.FileCopy(u"from.bin"_s, u"to.bin"_s);

    EXPECT_TRUE(home.ReadFile(u"to.bin") == bytes);
}

TEST_F(FileCopyTest, EmptyFile_IsCopied)
{
    home.WriteFile(u"from.bin", {});

    files.FileCopy(u"from.bin"_s, u"to.bin"_s);

    EXPECT_TRUE(home.Exists(u"to.bin"));
    EXPECT_EQ(home.ReadFile(u"to.bin"), QByteArray());
}

TEST_F(FileCopyTest, Copy_KeepsTheTimeOfTheSource)
{
    const QDateTime then(QDate(1999, 12, 31), QTime(23, 59, 58));
    QFile source(home.WriteFile(u"from.txt", "x"));
    ASSERT_TRUE(source.open(QFile::ReadWrite));
    ASSERT_TRUE(source.setFileTime(then, QFileDevice::FileModificationTime));
    source.close();

    files.FileCopy(u"from.txt"_s, u"to.txt"_s);

    EXPECT_EQ(QFileInfo(home.Path(u"to.txt")).lastModified(), then);
}

TEST_F(FileCopyTest, StandingFile_IsOverwritten_UnderTheNameItHas)
{
    home.WriteFile(u"from.txt", "short");
    home.WriteFile(u"Target.TXT", "something much longer");

    files.FileCopy(u"FROM.txt"_s, u"target.txt"_s);

    EXPECT_EQ(home.ReadFile(u"Target.TXT"), "short");
    EXPECT_FALSE(home.Exists(u"target.txt"));
}

TEST_F(FileCopyTest, NamesWithAccentsAndBlanks_AreCopied)
{
    home.WriteFile(u"Zo\u00eb A/\u00c9t\u00e9 1.txt", "x");

    files.FileCopy(u"Zo\u00eb A/\u00c9t\u00e9 1.txt"_s, u"Zo\u00eb A/\u0416 2.txt"_s);

    EXPECT_EQ(home.ReadFile(u"Zo\u00eb A/\u0416 2.txt"), "x");
}

TEST_F(FileCopyTest, CopyOntoItself_IsPermissionDenied)
{
    home.WriteFile(u"File.txt", "x");

    ExpectRefused(ErrorNumber::PermissionDenied, [&] { files.FileCopy(u"File.txt"_s, u"File.txt"_s); });
    ExpectRefused(ErrorNumber::PermissionDenied, [&] { files.FileCopy(u"File.txt"_s, u"FILE.TXT"_s); });
    ExpectRefused(ErrorNumber::PermissionDenied, [&] { files.FileCopy(u"File.txt"_s, home.Path(u"x/../file.txt")); });
}

TEST_F(FileCopyTest, MissingSource_IsFileNotFound)
{
    home.WriteFile(u"to.txt", "kept");
    home.MakeDirectory(u"folder");

    ExpectRefused(ErrorNumber::FileNotFound, [&] { files.FileCopy(u"missing.txt"_s, u"to.txt"_s); });
    ExpectRefused(ErrorNumber::FileNotFound, [&] { files.FileCopy(u"nowhere/x.txt"_s, u"to.txt"_s); });
    ExpectRefused(ErrorNumber::FileNotFound, [&] { files.FileCopy(u"folder"_s, u"to.txt"_s); });
}

TEST_F(FileCopyTest, MissingDestinationDirectory_IsPathNotFound)
{
    home.WriteFile(u"from.txt", "x");

    ExpectRefused(ErrorNumber::PathNotFound, [&] { files.FileCopy(u"from.txt"_s, u"nowhere/to.txt"_s); });
}

TEST_F(FileCopyTest, ReadOnlyDestination_IsPathFileAccess)
{
    home.WriteFile(u"from.txt", "new");
    home.WriteFile(u"to.txt", "old");
    home.MakeReadOnly(u"to.txt");

    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.FileCopy(u"from.txt"_s, u"to.txt"_s); });
}

TEST_F(FileCopyTest, ReadOnlyDestinationDirectory_IsPathFileAccess_WhoeverRunsTheProgram)
{
    home.WriteFile(u"from.txt", "new");
    home.WriteFile(u"locked/there.txt", "old");
    home.MakeReadOnly(u"locked");

    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.FileCopy(u"from.txt"_s, u"locked/to.txt"_s); });
    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.FileCopy(u"from.txt"_s, u"locked/there.txt"_s); });
}

TEST_F(FileCopyTest, DirectoryAsDestination_IsPathFileAccess)
{
    home.WriteFile(u"from.txt", "x");
    home.MakeDirectory(u"folder");

    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.FileCopy(u"from.txt"_s, u"folder"_s); });
}

TEST_F(FileCopyTest, ReadOnlySource_IsCopied)
{
    home.WriteFile(u"from.txt", "x");
    home.MakeReadOnly(u"from.txt");

    files.FileCopy(u"from.txt"_s, u"to.txt"_s);

    EXPECT_EQ(home.ReadFile(u"to.txt"), "x");
}

class KillTest : public FileSystemChangeTest
{
};

TEST_F(KillTest, File_IsRemoved_InWhateverCase)
{
    home.WriteFile(u"A b.txt", "x");
    home.WriteFile(u"stays.txt", "x");

    files.Kill(u"a B.TXT"_s);

    EXPECT_EQ(home.Snapshot().keys(), QStringList(u"stays.txt"_s));
}

TEST_F(KillTest, MissingFileOrDirectory_IsFileNotFound)
{
    home.MakeDirectory(u"folder");

    ExpectRefused(ErrorNumber::FileNotFound, [&] { files.Kill(u"missing.txt"_s); });
    ExpectRefused(ErrorNumber::FileNotFound, [&] { files.Kill(u"folder"_s); });
}

TEST_F(KillTest, ReadOnlyFileOrDirectory_IsPathFileAccess)
{
    home.WriteFile(u"locked.txt", "x");
    home.MakeReadOnly(u"locked.txt");
    home.WriteFile(u"locked/file.txt", "x");
    home.MakeReadOnly(u"locked");

    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.Kill(u"locked.txt"_s); });
    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.Kill(u"locked/file.txt"_s); });
}

using RenameTest = FileSystemChangeTest;

TEST_F(RenameTest, File_GetsItsNewName_InWhateverCaseTheOldOneIsTold)
{
    home.WriteFile(u"Dir/One.txt", "1");
    files.Rename(home.Path(u"dir/ONE.TXT"), home.Path(u"Dir/Two.txt"));
    EXPECT_EQ(home.Snapshot().keys(), QStringList({u"Dir"_s, u"Dir/Two.txt"_s}));
    EXPECT_EQ(home.ReadFile(u"Dir/Two.txt"), "1");
}

TEST_F(RenameTest, RelativeNames_AreTakenFromTheCurrentDirectory)
{
    home.WriteFile(u"Dir/one.txt", "1");
    files.ChDir(home.Path(u"Dir"));
    files.Rename(u"one.txt"_s, u"two.txt"_s);
    EXPECT_TRUE(home.Exists(u"Dir/two.txt"));
}

TEST_F(RenameTest, MissingFileOrDirectory_IsFileNotFound)
{
    home.MakeDirectory(u"Dir");
    ExpectRefused(ErrorNumber::FileNotFound, [&] { files.Rename(home.Path(u"none"), home.Path(u"x")); });
    ExpectRefused(ErrorNumber::FileNotFound, [&] { files.Rename(home.Path(u"Dir"), home.Path(u"x")); });
}

TEST_F(RenameTest, NameThatIsTaken_IsFileAlreadyExists_InWhateverCase)
{
    home.WriteFile(u"one.txt", "1");
    home.WriteFile(u"two.txt", "2");
    ExpectRefused(ErrorNumber::FileAlreadyExists, [&] { files.Rename(home.Path(u"one.txt"), home.Path(u"TWO.txt")); });
}

TEST_F(RenameTest, MissingDirectory_IsPathNotFound)
{
    home.WriteFile(u"one.txt", "1");
    ExpectRefused(ErrorNumber::PathNotFound, [&] { files.Rename(home.Path(u"one.txt"), home.Path(u"no/one.txt")); });
}

TEST_F(RenameTest, ReadOnlyDirectory_IsPathFileAccess_WhoeverRunsTheProgram)
{
    home.WriteFile(u"Dir/one.txt", "1");
    home.MakeReadOnly(u"Dir");
    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.Rename(home.Path(u"Dir/one.txt"), home.Path(u"Dir/two")); });
}

class DirectoryChangeTest : public FileSystemChangeTest
{
};

TEST_F(DirectoryChangeTest, MkDir_MakesTheDirectory_InTheParentAsItStands)
{
    home.MakeDirectory(u"Parent");

    files.MkDir(u"PARENT/Caf\u00e9 New"_s);

    EXPECT_EQ(home.Snapshot().value(u"Parent/Caf\u00e9 New"_s), "<dir>");
}

TEST_F(DirectoryChangeTest, MkDirOfWhatExists_IsPathFileAccess)
{
    home.MakeDirectory(u"There");
    home.WriteFile(u"file.txt", "x");

    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.MkDir(u"There"_s); });
    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.MkDir(u"THERE"_s); });
    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.MkDir(u"file.txt"_s); });
}

TEST_F(DirectoryChangeTest, MkDirBelowMissingParent_IsPathNotFound)
{
    ExpectRefused(ErrorNumber::PathNotFound, [&] { files.MkDir(u"nowhere/new"_s); });
}

TEST_F(DirectoryChangeTest, MkDirInReadOnlyParent_IsPathFileAccess)
{
    home.MakeDirectory(u"locked");
    home.MakeReadOnly(u"locked");

    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.MkDir(u"locked/new"_s); });
}

TEST_F(DirectoryChangeTest, RmDir_RemovesAnEmptyDirectory)
{
    home.MakeDirectory(u"Empty One");

    files.RmDir(u"EMPTY one"_s);

    EXPECT_FALSE(home.Exists(u"Empty One"));
}

TEST_F(DirectoryChangeTest, RmDirOfFilledDirectory_IsPathFileAccess)
{
    home.WriteFile(u"full/.hidden", "x");

    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.RmDir(u"full"_s); });
}

TEST_F(DirectoryChangeTest, RmDirOfMissingDirectoryOrFile_IsPathNotFound)
{
    home.WriteFile(u"file.txt", "x");

    ExpectRefused(ErrorNumber::PathNotFound, [&] { files.RmDir(u"missing"_s); });
    ExpectRefused(ErrorNumber::PathNotFound, [&] { files.RmDir(u"file.txt"_s); });
}

TEST_F(DirectoryChangeTest, RmDirInReadOnlyParent_IsPathFileAccess)
{
    home.MakeDirectory(u"locked/empty");
    home.MakeReadOnly(u"locked");

    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.RmDir(u"locked/empty"_s); });
}

class GetAttrTest : public FileSystemChangeTest
{
};

TEST_F(GetAttrTest, PlainFile_HasNone)
{
    home.WriteFile(u"File.txt", "x");

    EXPECT_EQ(files.GetAttr(u"file.TXT"_s), 0);
}

TEST_F(GetAttrTest, FileWithoutTheOwnersWriteBit_IsReadOnly_EvenForRoot)
{
    home.WriteFile(u"file.txt", "x");
    home.MakeReadOnly(u"file.txt");
    EXPECT_EQ(files.GetAttr(u"file.txt"_s), FileSystem::ReadOnly);

    home.MakeWritable(u"file.txt");
    EXPECT_EQ(files.GetAttr(u"file.txt"_s), 0);
}

TEST_F(GetAttrTest, FileThatOnlyOthersMayWrite_IsReadOnly)
{
    const QString path = home.WriteFile(u"file.txt", "x");
    ASSERT_TRUE(
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther));

    EXPECT_EQ(files.GetAttr(u"file.txt"_s), FileSystem::ReadOnly);
}

TEST_F(GetAttrTest, Directory_IsTold_ReadOnlyOrNot)
{
    home.MakeDirectory(u"folder");
    EXPECT_EQ(files.GetAttr(u"folder"_s), FileSystem::Directory);

    home.MakeReadOnly(u"folder");
    EXPECT_EQ(files.GetAttr(u"FOLDER"_s), FileSystem::Directory + FileSystem::ReadOnly);
}

TEST_F(GetAttrTest, MissingFile_IsFileNotFound)
{
    EXPECT_EQ(RefusalOf([&] { files.GetAttr(u"missing"_s); }), ErrorNumber::FileNotFound);
}

class ReplaceTest : public FileSystemChangeTest
{
};

TEST_F(ReplaceTest, NewFile_IsMade)
{
    files.Replace(u"new file.txt"_s, "bytes");

    EXPECT_EQ(home.ReadFile(u"new file.txt"), "bytes");
    EXPECT_EQ(home.Snapshot().size(), 1) << "no neighbour is left";
}

TEST_F(ReplaceTest, StandingFile_GetsTheNewBytes_UnderTheNameItHas)
{
    home.WriteFile(u"AliasList.cfg", "a rather long old content");

    files.Replace(u"aliaslist.cfg"_s, "new");

    EXPECT_EQ(home.ReadFile(u"AliasList.cfg"), "new");
    EXPECT_EQ(home.Snapshot().size(), 1);
}

TEST_F(ReplaceTest, StandingFile_KeepsItsPermissions)
{
    const QString path = home.WriteFile(u"file.txt", "x");
    const auto permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    ASSERT_TRUE(QFile::setPermissions(path, permissions));

    files.Replace(u"file.txt"_s, "y");

    EXPECT_FALSE(QFile::permissions(path).testFlag(QFileDevice::ReadOther));
}

TEST_F(ReplaceTest, EmptyContent_IsWritten)
{
    home.WriteFile(u"file.txt", "old");

    files.Replace(u"file.txt"_s, {});

    EXPECT_EQ(home.ReadFile(u"file.txt"), QByteArray());
}

TEST_F(ReplaceTest, ReadOnlyFileDirectoryOrPlace_IsPathFileAccess)
{
    home.WriteFile(u"locked.txt", "old");
    home.MakeReadOnly(u"locked.txt");
    home.WriteFile(u"locked/file.txt", "old");
    home.MakeReadOnly(u"locked");
    home.MakeDirectory(u"folder");

    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.Replace(u"locked.txt"_s, "new"); });
    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.Replace(u"locked/file.txt"_s, "new"); });
    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.Replace(u"locked/new.txt"_s, "new"); });
    ExpectRefused(ErrorNumber::PathFileAccess, [&] { files.Replace(u"folder"_s, "new"); });
}

TEST_F(ReplaceTest, MissingDirectory_IsPathNotFound)
{
    ExpectRefused(ErrorNumber::PathNotFound, [&] { files.Replace(u"nowhere/file.txt"_s, "new"); });
}

class ReadTest : public FileSystemChangeTest
{
};

TEST_F(ReadTest, AllBytes_AreRead)
{
    const QByteArray bytes("a\0\r\n\xff", 5);
    home.WriteFile(u"File.bin", bytes);

    EXPECT_EQ(files.Read(u"FILE.BIN"_s), bytes);
}

TEST_F(ReadTest, MissingFileOrDirectory_IsFileNotFound)
{
    home.MakeDirectory(u"folder");

    EXPECT_EQ(RefusalOf([&] { files.Read(u"missing"_s); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(RefusalOf([&] { files.Read(u"folder"_s); }), ErrorNumber::FileNotFound);
}

} // namespace
} // namespace lineforge
