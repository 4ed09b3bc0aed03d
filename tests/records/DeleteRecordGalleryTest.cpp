#include "records/DeleteRecordTest.h"

namespace lineforge
{
namespace
{

// The gallery is listed in its own directory, but removed from the current one.
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

TEST_F(DeletedGalleryTest, CurrentDirectoryElsewhere_ItsNamesakeGoesInstead)
{
    Home.WriteFile(u"Elsewhere/A001_01.jpg", "another");
    Home.WriteFile(u"Elsewhere/A001_55.jpg", "not in the gallery");
    P.Files.ChDir(Home.Path(u"Elsewhere"));

    Delete();

    EXPECT_EQ(Left(), All());
    EXPECT_FALSE(Home.Exists(u"Elsewhere/A001_01.jpg"));
    EXPECT_TRUE(Home.Exists(u"Elsewhere/A001_55.jpg"));
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
