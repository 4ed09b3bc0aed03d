#include "platform/drawing/PictureFile.h"

#include "support/Refusal.h"
#include "support/TemporaryHome.h"

#include <QBuffer>
#include <QFile>

#include <filesystem>
#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class PictureTest : public testing::Test
{
protected:
    void GivenPicture(QStringView name, QSize size, const QColor& colour, const char* format = "png")
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(colour);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        picture.save(&buffer, format);
        home.WriteFile(name, bytes);
    }

    TemporaryHome home;
    FileSystem files{home.Path()};
    PictureCache cache;
};

TEST_F(PictureTest, MissingFile_Is53)
{
    EXPECT_EQ(RefusalOf([&] { LoadPicture(files, u"none.jpg"_s); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(RefusalOf([&] { cache.Load(files, u"none.jpg"_s); }), ErrorNumber::FileNotFound);
}

TEST_F(PictureTest, FileThatIsNoPicture_Is481)
{
    home.WriteFile(u"words.jpg", "These are words.");
    home.WriteFile(u"empty.jpg", "");

    for (const QString& name : {u"words.jpg"_s, u"empty.jpg"_s}) {
        EXPECT_EQ(RefusalOf([&] { LoadPicture(files, name); }), ErrorNumber::InvalidPicture) << qUtf8Printable(name);
        EXPECT_EQ(RefusalOf([&] { cache.Load(files, name); }), ErrorNumber::InvalidPicture) << qUtf8Printable(name);
    }
}

TEST_F(PictureTest, DrawingInAScript_Is481)
{
    home.WriteFile(u"drawing.jpg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect/></svg>");
    home.WriteFile(u"page.jpg", "%PDF-1.4\n1 0 obj\n<< /Type /Catalog >>\nendobj\ntrailer\n<< /Root 1 0 R >>\n");
    home.WriteFile(u"letter.jpg", "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n{ } loop\n");

    for (const QString& name : {u"drawing.jpg"_s, u"page.jpg"_s, u"letter.jpg"_s})
        EXPECT_EQ(RefusalOf([&] { LoadPicture(files, name); }), ErrorNumber::InvalidPicture) << qUtf8Printable(name);
}

// A gallery may hold it, whose page would be refused with it.
TEST_F(PictureTest, OldKindOfPicture_IsReadByItsContent)
{
    home.WriteFile(u"bits.jpg", "#define a_width 8\n#define a_height 1\nstatic char a_bits[] = { 0x55 };\n");
    home.WriteFile(u"pixels.jpg", "/* XPM */\nstatic char * a[] = {\n\"8 1 1 1\",\n\"a c #FF0000\",\n\"aaaaaaaa\"};\n");
    home.WriteFile(u"map.jpg", "P1\n8 1\n0 1 0 1 0 1 0 1\n");
    home.WriteFile(u"greys.jpg", "P2\n8 1\n255\n0 1 2 3 4 5 6 7\n");
    home.WriteFile(u"colours.jpg", "P6\n8 1\n255\n" + QByteArray(24, '\x7F'));

    for (const QString& name : {u"bits.jpg"_s, u"pixels.jpg"_s, u"map.jpg"_s, u"greys.jpg"_s, u"colours.jpg"_s}) {
        EXPECT_EQ(LoadPicture(files, name).size(), QSize(8, 1)) << qUtf8Printable(name);
        EXPECT_EQ(cache.Load(files, name).size(), QSize(8, 1)) << qUtf8Printable(name);
    }
}

TEST_F(PictureTest, OldKindOfPicture_ThatIsTooLargeOrCutOff_Is481)
{
    home.WriteFile(u"greys.jpg", "P5\n40000 40000\n255\nxxxx");
    home.WriteFile(u"pixels.jpg", "/* XPM */\nstatic char * a[] = {\n\"30000 30000 1 1\",\n\"a c #FF0000\",\n");
    home.WriteFile(u"cut.jpg", "P6\n8 1\n255\nxxx");

    for (const QString& name : {u"greys.jpg"_s, u"pixels.jpg"_s, u"cut.jpg"_s})
        EXPECT_EQ(RefusalOf([&] { LoadPicture(files, name); }), ErrorNumber::InvalidPicture) << qUtf8Printable(name);
}

TEST_F(PictureTest, EveryKindThatIsPainted_IsRead)
{
    for (const char* format : {"jpg", "png", "bmp", "ico"}) {
        GivenPicture(u"one.jpg", {30, 20}, Qt::red, format);
        EXPECT_EQ(LoadPicture(files, u"one.jpg"_s).size(), QSize(30, 20)) << format;
    }
}

// A file may name fewer colours than its dots mean.
TEST_F(PictureTest, DotsBeyondTheColoursOfTheFile_HaveNone)
{
    QImage image(4, 4, QImage::Format_Indexed8);
    image.setColorTable({qRgb(255, 0, 0), qRgb(0, 0, 255)});
    image.fill(1);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QBuffer::WriteOnly);
    ASSERT_TRUE(image.save(&buffer, "BMP"));
    bytes.replace(bytes.size() - 16, 16, QByteArray(16, '\xC8'));
    home.WriteFile(u"one.bmp", bytes);
    const QImage read = LoadPicture(files, u"one.bmp"_s);
    EXPECT_EQ(read.colorCount(), 0);
    EXPECT_EQ(read.pixelColor(2, 2).alpha(), 0);
}

TEST_F(PictureTest, FileLargerThanAnyPicture_Is481)
{
    GivenPicture(u"one.bmp", {30, 20}, Qt::red, "bmp");
    ASSERT_TRUE(QFile::resize(home.Path(u"one.bmp"), (qint64{1} << 30) + 1));

    EXPECT_EQ(RefusalOf([&] { LoadPicture(files, u"one.bmp"_s); }), ErrorNumber::InvalidPicture);
}

TEST_F(PictureTest, NameInOtherCase_AndEndingOfAnotherKind_AreRead)
{
    GivenPicture(u"A001Sub.jpg", {30, 20}, Qt::red, "png");

    EXPECT_EQ(LoadPicture(files, u"a001SUB.JPG"_s).size(), QSize(30, 20));
}

TEST_F(PictureTest, LargePicture_IsKeptNoLargerThanAScreenShowsIt_InItsProportions)
{
    GivenPicture(u"large.png", {4000, 2000}, Qt::red);

    EXPECT_EQ(LoadPicture(files, u"large.png"_s).size(), QSize(4000, 2000));
    const QImage kept = cache.Load(files, u"large.png"_s);
    EXPECT_EQ(kept.size(), QSize(PictureCache::LongestSide, PictureCache::LongestSide / 2));
    EXPECT_EQ(kept.pixelColor(100, 100), QColor(Qt::red));
}

TEST_F(PictureTest, PictureSeenBefore_IsTheSameOneAgain)
{
    GivenPicture(u"one.png", {30, 20}, Qt::red);

    EXPECT_EQ(cache.Load(files, u"one.png"_s).cacheKey(), cache.Load(files, u"one.png"_s).cacheKey());
}

TEST_F(PictureTest, ChangedFile_IsReadAgain)
{
    GivenPicture(u"one.png", {30, 20}, Qt::red);
    cache.Load(files, u"one.png"_s);

    GivenPicture(u"one.png", {300, 200}, Qt::blue);

    EXPECT_EQ(cache.Load(files, u"one.png"_s).pixelColor(0, 0), QColor(Qt::blue));
}

TEST_F(PictureTest, CopyOfTheSameSizeAndTime_IsReadAgain)
{
    GivenPicture(u"red.bmp", {30, 20}, Qt::red, "bmp");
    GivenPicture(u"blue.bmp", {30, 20}, Qt::blue, "bmp");
    const auto time = std::filesystem::last_write_time(home.Path(u"red.bmp").toStdString());
    std::filesystem::last_write_time(home.Path(u"blue.bmp").toStdString(), time);
    files.FileCopy(u"red.bmp"_s, u"one.bmp"_s);
    EXPECT_EQ(cache.Load(files, u"one.bmp"_s).pixelColor(0, 0), QColor(Qt::red));

    files.FileCopy(u"blue.bmp"_s, u"one.bmp"_s);

    EXPECT_EQ(cache.Load(files, u"one.bmp"_s).pixelColor(0, 0), QColor(Qt::blue));
}

TEST_F(PictureTest, OnlyTheLastFewAreKept)
{
    GivenPicture(u"first.png", {30, 20}, Qt::red);
    const qint64 first = cache.Load(files, u"first.png"_s).cacheKey();
    for (int index = 0; index < 20; ++index) {
        const QString name = u"%1.png"_s.arg(index);
        GivenPicture(name, {30, 20}, Qt::green);
        cache.Load(files, name);
    }

    EXPECT_NE(cache.Load(files, u"first.png"_s).cacheKey(), first);
}

} // namespace
} // namespace lineforge
