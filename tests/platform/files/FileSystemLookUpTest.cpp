#include "platform/base/RuntimeError.h"
#include "platform/files/FileSystem.h"
#include "support/Refusal.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class FileSystemLookUpTest : public testing::Test
{
protected:
    void GivenFiles(const QStringList& names)
    {
        for (const QString& name : names)
            home.WriteFile(name, name.toUtf8());
    }

    TemporaryHome home;
    FileSystem files{home.Path()};
};

TEST_F(FileSystemLookUpTest, NameInOtherCase_IsFound_AndToldAsItStands)
{
    GivenFiles({u"LfgDat_A/LfgDat_A.mdb"_s});

    EXPECT_EQ(files.Dir(u"LFGDAT_A/Lfgdat_A.MDB"_s), u"LfgDat_A.mdb");
    EXPECT_EQ(files.Resolve(u"lfgdat_a/lfgdat_a.mdb"_s), home.Path(u"LfgDat_A/LfgDat_A.mdb"));
    EXPECT_EQ(files.Read(u"lfgdat_a/lfgdat_a.mdb"_s), "LfgDat_A/LfgDat_A.mdb");
}

TEST_F(FileSystemLookUpTest, ExactName_WinsOverOneInOtherCase)
{
    GivenFiles({u"NOTES.TXT"_s, u"Notes.txt"_s, u"notes.txt"_s});

    for (const QString& name : {u"NOTES.TXT"_s, u"Notes.txt"_s, u"notes.txt"_s}) {
        EXPECT_EQ(files.Dir(name), name);
        EXPECT_EQ(files.Read(name), name.toUtf8());
    }
}

TEST_F(FileSystemLookUpTest, ExactDirectory_WinsOverOneInOtherCase)
{
    GivenFiles({u"Data/a.txt"_s, u"DATA/b.txt"_s});

    EXPECT_EQ(files.Resolve(u"DATA/b.txt"_s), home.Path(u"DATA/b.txt"));
    EXPECT_EQ(files.Resolve(u"Data/A.TXT"_s), home.Path(u"Data/a.txt"));
}

TEST_F(FileSystemLookUpTest, NameWithAccentsAndBlanks_IsFoundInOtherCase)
{
    GivenFiles({u"M\u00fcller Fam\u00edlia/Gr\u00fc\u00dfe an Zo\u00eb.txt"_s});

    EXPECT_EQ(files.Dir(u"M\u00dcLLER FAM\u00cdLIA/GR\u00dc\u00dfE AN ZO\u00cb.TXT"_s),
              u"Gr\u00fc\u00dfe an Zo\u00eb.txt");
    EXPECT_EQ(files.Dir(u"M\u00fcller Fam\u00edlia/gr\u00fc*"_s), u"Gr\u00fc\u00dfe an Zo\u00eb.txt");
}

TEST_F(FileSystemLookUpTest, MissingName_GivesNothing)
{
    GivenFiles({u"here.txt"_s});
    home.MakeDirectory(u"folder");

    EXPECT_EQ(files.Dir(u"there.txt"_s), QString());
    EXPECT_EQ(files.Dir(u"nowhere/here.txt"_s), QString());
    EXPECT_EQ(files.Dir(u"here.tx"_s), QString());
    EXPECT_EQ(files.Dir(u"folder"_s), QString()) << "a directory is no file";
    EXPECT_EQ(files.Dir(QString()), QString());
}

TEST_F(FileSystemLookUpTest, AbsoluteAndDottedPaths_LeadToTheSameFile)
{
    GivenFiles({u"a/one.txt"_s});

    EXPECT_EQ(files.Dir(home.Path(u"A/ONE.TXT")), u"one.txt");
    EXPECT_EQ(files.Resolve(u"a/../a/./one.txt"_s), home.Path(u"a/one.txt"));
}

TEST_F(FileSystemLookUpTest, PartsThatDoNotExist_StayAsTheyAreSpelt)
{
    home.MakeDirectory(u"LfgDat_A");

    EXPECT_EQ(files.Resolve(u"lfgdat_a/New Dir/File.TXT"_s), home.Path(u"LfgDat_A/New Dir/File.TXT"));
}

TEST_F(FileSystemLookUpTest, CurrentDirectory_IsTheObjectsOwn)
{
    GivenFiles({u"a/one.txt"_s, u"b/two.txt"_s});
    FileSystem other(home.Path(u"b"));

    files.ChDir(u"A"_s);

    EXPECT_EQ(files.CurDir(), home.Path(u"a"));
    EXPECT_EQ(files.Dir(u"one.txt"_s), u"one.txt");
    EXPECT_EQ(files.Dir(u"*"_s), u"one.txt");
    EXPECT_EQ(other.CurDir(), home.Path(u"b"));
    EXPECT_EQ(other.Dir(u"one.txt"_s), QString());
}

TEST_F(FileSystemLookUpTest, ChangeToMissingDirectory_IsPathNotFound_AndChangesNothing)
{
    GivenFiles({u"file.txt"_s});

    EXPECT_EQ(RefusalOf([&] { files.ChDir(u"missing"_s); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(RefusalOf([&] { files.ChDir(u"file.txt"_s); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(files.CurDir(), home.Path());
}

TEST_F(FileSystemLookUpTest, Listing_IsSortedWithoutRegardToCase_FilesAndDirectoriesApart)
{
    GivenFiles({u"d/beta"_s, u"d/Alpha"_s, u"d/GAMMA"_s, u"d/.hidden"_s, u"d/Sub/x"_s, u"d/another/x"_s});

    EXPECT_EQ(files.Files(u"d/*"_s), QStringList({u".hidden"_s, u"Alpha"_s, u"beta"_s, u"GAMMA"_s}));
    EXPECT_EQ(files.Directories(u"d/*"_s), QStringList({u"another"_s, u"Sub"_s}));
    EXPECT_EQ(files.Files(u"d/"_s), files.Files(u"d/*"_s));
    EXPECT_EQ(files.Files(u"D/"_s), files.Files(u"d/*"_s));
}

TEST_F(FileSystemLookUpTest, NamesThatDifferInCaseOnly_AreAlwaysListedInTheSameOrder)
{
    GivenFiles({u"b"_s, u"a"_s, u"B"_s, u"A"_s});

    EXPECT_EQ(files.Files(u"*"_s), QStringList({u"A"_s, u"a"_s, u"B"_s, u"b"_s}));
}

TEST_F(FileSystemLookUpTest, ListingOfNothing_IsEmpty)
{
    home.MakeDirectory(u"empty");

    EXPECT_EQ(files.Files(u"empty/*"_s), QStringList());
    EXPECT_EQ(files.Directories(u"empty/"_s), QStringList());
    EXPECT_EQ(files.Files(u"missing/*"_s), QStringList());
    EXPECT_EQ(files.Dir(u"empty/*"_s), QString());
}

struct Fit {
    QStringView Pattern;
    QStringList Names;
};

void PrintTo(const Fit& fit, std::ostream* out)
{
    PrintTo(fit.Pattern, out);
}

class PatternTest : public FileSystemLookUpTest, public testing::WithParamInterface<Fit>
{
};

TEST_P(PatternTest, Pattern_FindsExactlyTheNamesThatFit)
{
    GivenFiles({u"A001Sub.jpg"_s, u"A002Sub.JPG"_s, u"B001Sub.jpg"_s, u"a001.txt"_s, u"notes"_s, u"x[1].txt"_s,
                u"x1.txt"_s, u"a+b.txt"_s, u"two words.txt"_s});

    EXPECT_EQ(files.Files(GetParam().Pattern.toString()), GetParam().Names);
    EXPECT_EQ(files.Dir(GetParam().Pattern.toString()), GetParam().Names.value(0));
}

INSTANTIATE_TEST_SUITE_P(Patterns, PatternTest,
                         testing::Values(Fit{u"*sub.jpg", {u"A001Sub.jpg"_s, u"A002Sub.JPG"_s, u"B001Sub.jpg"_s}},
                                         Fit{u"a*.JPG", {u"A001Sub.jpg"_s, u"A002Sub.JPG"_s}},
                                         Fit{u"?001*", {u"a001.txt"_s, u"A001Sub.jpg"_s, u"B001Sub.jpg"_s}},
                                         Fit{u"a00?sub.jpg", {u"A001Sub.jpg"_s, u"A002Sub.JPG"_s}},
                                         Fit{u"a001?.txt", {}}, Fit{u"?", {}}, Fit{u"note?", {u"notes"_s}},
                                         Fit{u"*notes*", {u"notes"_s}}, Fit{u"two *", {u"two words.txt"_s}},
                                         Fit{u"*.missing", {}}));
// Only the star and the question mark mean something.
INSTANTIATE_TEST_SUITE_P(OtherSigns, PatternTest,
                         testing::Values(Fit{u"x[1]*", {u"x[1].txt"_s}}, Fit{u"x[*", {u"x[1].txt"_s}},
                                         Fit{u"a+b.*", {u"a+b.txt"_s}}, Fit{u"x?.txt", {u"x1.txt"_s}},
                                         Fit{u"x.*t", {}}));

struct Tail {
    QStringView Path;
    int Length;
    bool IsFound;
};

void PrintTo(const Tail& tail, std::ostream* out)
{
    PrintTo(tail.Path, out);
    *out << " by its last " << tail.Length;
}

class LookUpGivesTailTest : public FileSystemLookUpTest, public testing::WithParamInterface<Tail>
{
};

TEST_P(LookUpGivesTailTest, File_CountsAsThere_WhenTheLookUpGivesTheTail)
{
    GivenFiles({u"LfgDat_A/LfgDat_A.cfg"_s, u"AliasList.cfg"_s, u"ab.cfg"_s});
    home.MakeDirectory(u"DirName.cfg");

    EXPECT_EQ(files.LookUpGivesTail(GetParam().Path.toString(), GetParam().Length), GetParam().IsFound);
}

INSTANTIATE_TEST_SUITE_P(Tails, LookUpGivesTailTest,
                         testing::Values(Tail{u"LfgDat_A/LfgDat_A.cfg", 12, true},
                                         Tail{u"LfgDat_A/lfgdat_a.CFG", 12, true}, Tail{u"AliasList.cfg", 13, true},
                                         Tail{u"aliaslist.CFG", 13, true},
                                         Tail{u"AliasList.cfg", 12, false},         // the name is longer than the tail
                                         Tail{u"LfgDat_A/LfgDat_A.cfg", 13, false}, // the tail holds the separator
                                         Tail{u"ab.cfg", 12, true},                 // the path itself is the whole tail
                                         Tail{u"missing.cfg", 11, false}, Tail{u"DirName.cfg", 11, false},
                                         Tail{u"LfgDat_A/L*.cfg", 6, false}));

TEST_F(FileSystemLookUpTest, MissingFileAskedByNoCharacters_CountsAsThere)
{
    EXPECT_TRUE(files.LookUpGivesTail(u"missing"_s, 0));
}

} // namespace
} // namespace lineforge
