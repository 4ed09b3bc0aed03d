#include "gallery/GalleryTest.h"

#include <QFile>

#include <sys/stat.h>

namespace lineforge
{
namespace
{

struct FatalFile {
    const char* Name;
    const char* Content; // null: a picture
    const char* Error;
};

// A file that ends the building of its record's page by the path that every unmet error takes.
class FatalGalleryFileTest : public GalleryTest, public testing::WithParamInterface<FatalFile>
{
};

TEST_P(FatalGalleryFileTest, EndsTheProgramWithItsError_AndNothingIsLost)
{
    const QString name = QString::fromUtf8(GetParam().Name);
    Home.WriteFile(InGallery(name), GetParam().Content ? QByteArray(GetParam().Content) : PictureBytes(Qt::blue));
    Choose(u"Smiths");
    const Tree before = Home.Snapshot();
    ExpectFatalBox(QString(QString::fromUtf8(GetParam().Error) + GalleryPathOf(name)));
    Click(P.Form1->Command2.Click);
    EXPECT_TRUE(ExitCode().has_value());
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

INSTANTIATE_TEST_SUITE_P(
    Files, FatalGalleryFileTest,
    testing::Values(
        FatalFile{"A001_xx.jpg", nullptr,
                  "Run-time error '13':\n\nType mismatch\n\nA number should stand where this stands:\n'xx'\n"},
        FatalFile{"A001_.jpg", nullptr,
                  "Run-time error '13':\n\nType mismatch\n\nA number should stand where this stands:\n'.j'\n"},
        FatalFile{"A001_", nullptr,
                  "Run-time error '13':\n\nType mismatch\n\nA number should stand where this stands:\n''\n"},
        FatalFile{"A001_00.jpg", nullptr,
                  "Run-time error '9':\n\nSubscript out of range\n\nThe list or table that is needed has no place of "
                  "this number:\n0\n"},
        FatalFile{"A001_99.jpg", nullptr,
                  "Run-time error '9':\n\nSubscript out of range\n\nThe list or table that is needed has no place of "
                  "this number:\n99\n"},
        FatalFile{"A001_99.doc", nullptr,
                  "Run-time error '9':\n\nSubscript out of range\n\nThe list or table that is needed has no place of "
                  "this number:\n99\n"},
        FatalFile{"A001_00.doc", nullptr,
                  "Run-time error '9':\n\nSubscript out of range\n\nThe list or table that is needed has no place of "
                  "this number:\n0\n"},
        FatalFile{"A001_-1.jpg", nullptr,
                  "Run-time error '9':\n\nSubscript out of range\n\nThe list or table that is needed has no place of "
                  "this number:\n-1\n"},
        FatalFile{"A001_01.jpg", "",
                  "Run-time error '481':\n\nInvalid picture\n\nThis file is no picture that can be shown:\n"},
        FatalFile{"A001_01.jpg", "this is no picture",
                  "Run-time error '481':\n\nInvalid picture\n\nThis file is no picture that can be shown:\n"},
        FatalFile{"A001_01.bmp", "BM but nothing more",
                  "Run-time error '481':\n\nInvalid picture\n\nThis file is no picture that can be shown:\n"}));

using BadGalleryTest = GalleryTest;

TEST_F(BadGalleryTest, SubscriptOfThreeDigits_IsReadAsItsFirstTwo)
{
    OpenGallery({u"A001_100.jpg"_s});
    EXPECT_EQ(Top(), 10);
    EXPECT_EQ(Page().at(9), u"9 A001_100.jpg blue"_s);
}

TEST_F(BadGalleryTest, NamesWithAccentsAndBlanks_AreListed)
{
    OpenGallery({u"A001_01 Été à la mer.jpg"_s, u"A001_02 Grüße.wav"_s});
    EXPECT_EQ(Page(),
              QStringList({u"0 A001_01 Été à la mer.jpg blue"_s, u"1 A001_02 Grüße.wav sound"_s, u"2 3 empty"_s}));
    ClickTile(0);
    EXPECT_EQ(State(), GalleryScan::ItemOpen);
    EXPECT_EQ(Page(), QStringList{u"0 A001_01 Été à la mer.jpg blue"_s});
}

TEST_F(BadGalleryTest, PictureOf30000By30000_EndsTheProgram_WithoutBeingDecoded)
{
    QByteArray huge = BitmapBytes(Qt::blue);
    for (const qsizetype at : {18, 22}) // width and height in the head of a bitmap
        huge.replace(at, 4, QByteArray("\x30\x75\x00\x00", 4));
    Home.WriteFile(InGallery(u"A001_01.bmp"), huge);
    Choose(u"Smiths");
    ExpectFatalBox(u"Run-time error '481':\n\nInvalid picture",
                   u"This file is no picture that can be shown:\n"_s + GalleryPathOf(u"A001_01.bmp"));
    Click(P.Form1->Command2.Click);
    EXPECT_TRUE(ExitCode().has_value());
}

TEST_F(BadGalleryTest, PictureUnderAnotherFormatsName_IsShown)
{
    Home.WriteFile(InGallery(u"A001_01.jpg"), BitmapBytes(Qt::blue));
    Home.WriteFile(InGallery(u"A001_02.bmp"), PictureBytes(Qt::red));
    OpenGallery();
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 A001_02.bmp red"_s, u"2 3 empty"_s}));
}

TEST_F(BadGalleryTest, MissingIcon_EndsTheProgram)
{
    P.Files.Kill(Home.Path(u"GalAud.bmp"));
    GivenFiles({u"A001_01.wav"_s});
    Choose(u"Smiths");
    ExpectFatalBox(u"Run-time error '53':\n\nFile not found", u"There is no such file:\n"_s + Home.Path(u"GalAud.bmp"));
    Click(P.Form1->Command2.Click);
    EXPECT_TRUE(ExitCode().has_value());
}

TEST_F(BadGalleryTest, PipeUnderAFilesName_IsNotRead)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(GalleryPathOf(u"A001_01.jpg")).constData(), 0600), 0);
    Choose(u"Smiths");
    ExpectFatalBox(u"Run-time error '53':\n\nFile not found",
                   u"There is no such file:\n"_s + GalleryPathOf(u"A001_01.jpg"));
    Click(P.Form1->Command2.Click);
    EXPECT_TRUE(ExitCode().has_value());
}

TEST_F(BadGalleryTest, DirectoryUnderAFilesName_IsNoFile)
{
    Home.MakeDirectory(InGallery(u"A001_01.jpg"));
    OpenGallery();
    EXPECT_EQ(Page(), QStringList{u"0 1 empty"_s});
}

} // namespace
} // namespace lineforge
