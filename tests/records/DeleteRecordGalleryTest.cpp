#include "records/DeleteRecordTest.h"

namespace lineforge
{
namespace
{

// The gallery goes where it is the current directory, and stays where it isn't; then its number isn't given again.
class DeletedGalleryTest : public DeleteRecordTest
{
protected:
    DeletedGalleryTest()
    {
        for (const QStringView file : names)
            Home.WriteFile(InGallery(file), "picture");
    }
    static QString InGallery(QStringView file) { return u"LfgDat_A/LfgGal_A/" + file; }

    QStringList Left()
    {
        QStringList left;
        for (const QStringView file : names)
            if (Home.Exists(InGallery(file)))
                left += file.toString();
        return left;
    }
    QStringList All()
    {
        QStringList all;
        for (const QStringView file : names)
            all += file.toString();
        return all;
    }

    static constexpr QStringView names[] = {u"A001_01.jpg",  u"A001_99.jpg", u"a001_02.JPG", u"A001_3.jpg",
                                            u"A001_123.jpg", u"A001_x1.jpg", u"A001_04.gif", u"A002_01.jpg",
                                            u"BA001_01.jpg", u"A001.jpg"};
};

TEST_F(DeletedGalleryTest, CurrentDirectoryIsTheBranch_EveryFileStays)
{
    ASSERT_EQ(P.Files.CurDir(), P.Branch.WorkDir);

    Delete();

    EXPECT_EQ(Left(), All());
    EXPECT_EQ(Numbers(), QStringList({u"A002"_s, u"A003"_s}));
}

TEST_F(DeletedGalleryTest, CurrentDirectoryIsTheGallery_FilesWithTwoDigitsGo_CaseIgnored)
{
    P.Files.ChDir(Home.Path(u"LfgDat_A/LfgGal_A"));

    Delete();

    EXPECT_EQ(Left(), QStringList({u"A001_3.jpg"_s, u"A001_123.jpg"_s, u"A001_x1.jpg"_s, u"A001_04.gif"_s,
                                   u"A002_01.jpg"_s, u"BA001_01.jpg"_s, u"A001.jpg"_s}));
}

// As an addition leaves it that was cancelled in the other branch's gallery.
TEST_F(DeletedGalleryTest, CurrentDirectoryIsTheGalleryOfAnotherBranch_ItsNamesakesStay)
{
    Home.WriteFile(u"LfgDat_B/LfgGal_B/A001_01.jpg", "another");
    P.Files.ChDir(Home.Path(u"LfgDat_B/LfgGal_B"));

    Delete();

    EXPECT_EQ(Left(), All());
    EXPECT_TRUE(Home.Exists(u"LfgDat_B/LfgGal_B/A001_01.jpg"));
}

TEST_F(DeletedGalleryTest, CurrentDirectoryElsewhere_ItsNamesakeStays)
{
    Home.WriteFile(u"Elsewhere/A001_01.jpg", "another");
    Home.WriteFile(u"Elsewhere/A001_55.jpg", "not in the gallery");
    P.Files.ChDir(Home.Path(u"Elsewhere"));

    Delete();

    EXPECT_EQ(Left(), All());
    EXPECT_TRUE(Home.Exists(u"Elsewhere/A001_01.jpg"));
    EXPECT_TRUE(Home.Exists(u"Elsewhere/A001_55.jpg"));
}

TEST_F(DeletedGalleryTest, NumberWhoseGalleryStays_IsNotGivenAgain)
{
    Home.WriteFile(InGallery(u"a003_07.txt"), "his letter");
    Home.WriteFile(InGallery(u"A004_01.jpg"), "hers");
    Execute("DELETE FROM Tree99 WHERE File = 'A002'");
    Records(P.Form3).MoveLast();
    Delete();
    ASSERT_EQ(Numbers(), QStringList(u"A001"_s));
    ASSERT_TRUE(Home.Exists(InGallery(u"a003_07.txt")));

    // Of A002 there is a file, too.
    Add(u"A005");

    EXPECT_EQ(Numbers(), QStringList({u"A001"_s, u"A005"_s}));
}

TEST_F(DeletedGalleryTest, NumberWhoseGalleryHasGone_IsGivenAgain)
{
    Home.WriteFile(InGallery(u"A003_07.jpg"), "his picture");
    P.Files.ChDir(Home.Path(u"LfgDat_A/LfgGal_A"));
    Records(P.Form3).MoveLast();

    Delete();
    Add(u"A003");

    EXPECT_EQ(Numbers(), QStringList({u"A001"_s, u"A002"_s, u"A003"_s}));
}

TEST_F(DeletedGalleryTest, ReadOnlyFile_Stays_WithoutAWord_AndTheNextGoes)
{
    P.Files.ChDir(Home.Path(u"LfgDat_A/LfgGal_A"));
    Home.MakeReadOnly(InGallery(u"A001_01.jpg"));

    Delete();

    EXPECT_TRUE(Home.Exists(InGallery(u"A001_01.jpg")));
    EXPECT_FALSE(Home.Exists(InGallery(u"A001_99.jpg")));
}

} // namespace
} // namespace lineforge
