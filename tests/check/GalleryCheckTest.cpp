#include "check/CheckTest.h"

#include <QDir>

namespace lineforge::check
{
namespace
{

using namespace Qt::StringLiterals;

class GalleryCheckTest : public CheckTest
{
protected:
    static QString In(QStringView name) { return u"LfgDat_A/LfgGal_A/"_s + name; }
};

struct Row {
    QStringView Name;
    Kind ItsKind;
    QStringView Record;
    QStringView Text;
};

class GalleryNameTest : public GalleryCheckTest, public testing::WithParamInterface<Row>
{
};

TEST_P(GalleryNameTest, IsTold)
{
    const Row& row = GetParam();
    home.WriteFile(In(row.Name), row.Name.endsWith(u"jpg") ? PictureBytes(Qt::red) : QByteArray("x"));
    EXPECT_EQ(Findings(), Found{Of(row.ItsKind, In(row.Name), row.Record, row.Text)});
}

constexpr QStringView gone = u"the file of a record that isn't there";
constexpr QStringView noTile = u"there is no tile for this file; tiles go from 01 to 98";

INSTANTIATE_TEST_SUITE_P(
    Names, GalleryNameTest,
    testing::Values(
        Row{u"A009_01.jpg", Kind::GalleryFile, u"A009", gone}, Row{u"B001_01.txt", Kind::GalleryFile, u"B001", gone},
        Row{u"A002_00.jpg", Kind::GalleryFile, u"A002", noTile}, Row{u"A002_0.jpg", Kind::GalleryFile, u"A002", noTile},
        Row{u"A002_99.txt", Kind::GalleryFile, u"A002", noTile},
        Row{u"A002_-1.txt", Kind::GalleryFile, u"A002", noTile},
        Row{u"A002_ab.txt", Kind::GalleryFile, u"A002", noTile}, Row{u"A002_.txt", Kind::GalleryFile, u"A002", noTile},
        Row{u"A002_07.png", Kind::GalleryFile, u"A002",
            u"no gallery shows a file of this ending, nor this record's others with it"},
        Row{u"notes.txt", Kind::StrangeFile, u"", u"this file belongs to no record"},
        Row{u"a.jpg", Kind::StrangeFile, u"", u"this file belongs to no record"}));

class GalleryLegalNameTest : public GalleryCheckTest, public testing::WithParamInterface<QStringView>
{
};

TEST_P(GalleryLegalNameTest, IsLegal)
{
    home.WriteFile(In(GetParam()), GetParam().endsWith(u"avi") ? "RIFFxxxxAVI LIST" : PictureBytes(Qt::red));
    EXPECT_EQ(Findings(), Found());
}

// The program looks at the two characters behind the underscore and at the last three.
INSTANTIATE_TEST_SUITE_P(Names, GalleryLegalNameTest,
                         testing::Values(u"A002_98.jpg", u"a002_01.JPG", u"A002_3.jpg", u"A002_03.avi", u"A002_123.jpg",
                                         u"A002_12 beach.bmp"));

TEST_F(GalleryCheckTest, TwoFilesOnOneTile_AreTold)
{
    home.WriteFile(In(u"A001_01.wav"), "RIFFxxxxWAVEfmt ");
    EXPECT_EQ(Findings(), Found{Of(Kind::GalleryFile, In(u"A001_01.jpg"), u"A001",
                                   u"hidden by A001_01.wav, which stands on the same tile")});
}

// The first tile's file has gone out of the way; whether or not the second's has come in its place.
TEST_F(GalleryCheckTest, SwapOfTilesThatWasCutOff_IsToldByTheFileThatItHasLeft)
{
    const Finding left = Of(Kind::GalleryFile, In(u"A001_01Temp.jpg"), u"A001",
                            u"left by a swap of two tiles that was cut off; tile 01 was its own before");
    home.WriteFile(In(u"A001_01Temp.jpg"), PictureBytes(Qt::blue));
    EXPECT_EQ(Findings(), Found{left});
    ASSERT_TRUE(QFile::remove(home.Path(In(u"A001_01.jpg"))));
    EXPECT_EQ(Findings(), Found{left});
}

TEST_F(GalleryCheckTest, PictureThatNoReaderTakes_IsTold)
{
    home.WriteFile(In(u"A002_01.bmp"), "BM, it says");
    EXPECT_EQ(Findings(), Found{Of(Kind::GalleryFile, In(u"A002_01.bmp"), u"A002", u"no picture that can be shown")});
}

TEST_F(GalleryCheckTest, SoundOrFilmThatNoPlayerTakes_IsTold)
{
    home.WriteFile(In(u"A002_01.avi"), "#EXTM3U");
    EXPECT_EQ(Findings(),
              Found{Of(Kind::GalleryFile, In(u"A002_01.avi"), u"A002", u"no sound or film that can be played")});
}

TEST_F(GalleryCheckTest, GalleryThatIsNotThere_IsNoted)
{
    ASSERT_TRUE(QDir(home.Path(u"LfgDat_A/LfgGal_A")).removeRecursively());
    EXPECT_EQ(Findings(),
              Found{Of(Kind::WithoutGallery, u"LfgDat_A/LfgGal_A", u"", u"there is no directory for a gallery")});
}

} // namespace
} // namespace lineforge::check
