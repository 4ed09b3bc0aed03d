#include "platform/drawing/Thumbnails.h"

#include "platform/base/RuntimeError.h"
#include "support/Refusal.h"
#include "support/TemporaryHome.h"

#include <QBuffer>
#include <QPainter>

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

constexpr QSize dots{49, 57};

class ThumbnailsTest : public testing::Test
{
protected:
    QString GivenPicture(QStringView name, QSize size, const QColor& colour, const char* format = "jpg")
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(colour);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        picture.save(&buffer, format);
        return home.WriteFile(name, bytes);
    }

    QColor ColourOf(const QString& path) { return thumbnails.Load(files, path, dots).pixelColor(20, 20); }
    static bool IsLike(const QColor& a, const QColor& b)
    {
        return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()) < 12;
    }

    TemporaryHome home;
    FileSystem files{home.Path()};
    Thumbnails thumbnails;
};

TEST_F(ThumbnailsTest, Picture_IsStretchedToTheSizeAskedFor_WhateverItsOwn)
{
    for (const char* format : {"jpg", "bmp", "png"})
        for (const QSize size : {QSize(1200, 300), QSize(20, 30), dots}) {
            const QString path = GivenPicture(QString(u"a." + QString::fromLatin1(format)), size, Qt::red, format);
            EXPECT_EQ(thumbnails.Load(files, path, dots).size(), dots) << format;
            EXPECT_TRUE(IsLike(ColourOf(path), Qt::red)) << format;
        }
}

TEST_F(ThumbnailsTest, WhatWasExpected_ComesAsIfItHadNotBeen)
{
    QStringList paths;
    for (int number = 0; number < 30; ++number)
        paths << GivenPicture(u"%1.jpg"_s.arg(number), {300, 200}, QColor(number * 8, 0, 0));
    thumbnails.Expect(files, paths, dots);
    for (int number = 0; number < 30; ++number)
        EXPECT_TRUE(IsLike(ColourOf(paths.at(number)), QColor(number * 8, 0, 0))) << number;
}

// Two of them have more dots than are decoded at one time.
TEST_F(ThumbnailsTest, PageOfLargePictures_ComesOneByOne)
{
    QImage large(10000, 7000, QImage::Format_Grayscale8);
    large.fill(Qt::white);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    large.save(&buffer, "jpg");
    QStringList paths;
    for (int number = 0; number < 3; ++number)
        paths << home.WriteFile(u"%1.jpg"_s.arg(number), bytes);
    thumbnails.Expect(files, paths, dots);
    for (const QString& path : paths)
        EXPECT_TRUE(IsLike(ColourOf(path), Qt::white));
}

TEST_F(ThumbnailsTest, NextExpectation_TakesThePlaceOfTheOneBefore)
{
    QStringList first;
    for (int number = 0; number < 20; ++number)
        first << GivenPicture(u"%1.jpg"_s.arg(number), {800, 600}, Qt::red);
    const QString second = GivenPicture(u"next.jpg", {300, 200}, Qt::blue);
    thumbnails.Expect(files, first, dots);
    thumbnails.Expect(files, {second}, dots);
    EXPECT_TRUE(IsLike(ColourOf(second), Qt::blue));
    EXPECT_TRUE(IsLike(ColourOf(first.last()), Qt::red));
}

TEST_F(ThumbnailsTest, ChangedFile_IsReadAgain)
{
    const QString path = GivenPicture(u"a.jpg", {300, 200}, Qt::red);
    EXPECT_TRUE(IsLike(ColourOf(path), Qt::red));
    GivenPicture(u"a.jpg", {310, 200}, Qt::blue);
    EXPECT_TRUE(IsLike(ColourOf(path), Qt::blue));
}

TEST_F(ThumbnailsTest, PictureSeenBefore_IsDecodedOnce)
{
    const QString path = GivenPicture(u"a.jpg", {300, 200}, Qt::red);
    const qint64 first = thumbnails.Load(files, path, dots).cacheKey();
    EXPECT_EQ(thumbnails.Load(files, path, dots).cacheKey(), first);
    EXPECT_EQ(thumbnails.Load(files, path, {10, 10}).size(), QSize(10, 10));
}

TEST_F(ThumbnailsTest, WaitingForAPicture_IsToldToWhoeverWaits)
{
    const QString path = GivenPicture(u"a.jpg", {4000, 3000}, Qt::red);
    int waits = 0;
    thumbnails.Load(files, path, dots, [&waits] { ++waits; });
    EXPECT_GT(waits, 0);
    const int before = waits;
    thumbnails.Load(files, path, dots, [&waits] { ++waits; });
    EXPECT_EQ(waits, before);
}

TEST_F(ThumbnailsTest, MissingFile_Is53_AndNoPicture_481)
{
    const QString words = home.WriteFile(u"words.jpg", "These are words.");
    const QString missing = home.Path(u"none.jpg");
    for (const bool expected : {false, true}) {
        if (expected)
            thumbnails.Expect(files, {words, missing}, dots);
        EXPECT_EQ(RefusalOf([&] { thumbnails.Load(files, words, dots); }), ErrorNumber::InvalidPicture);
        EXPECT_EQ(RefusalOf([&] { thumbnails.Load(files, missing, dots); }), ErrorNumber::FileNotFound);
    }
}

// A small picture whose head tells another size.
QByteArray WithToldSize(QByteArray jpeg, int width, int height)
{
    for (qsizetype at = 2; at + 9 < jpeg.size();) {
        const auto marker = static_cast<uchar>(jpeg.at(at + 1));
        if (marker == 0xC0) {
            jpeg[at + 5] = static_cast<char>(height >> 8);
            jpeg[at + 6] = static_cast<char>(height & 255);
            jpeg[at + 7] = static_cast<char>(width >> 8);
            jpeg[at + 8] = static_cast<char>(width & 255);
            return jpeg;
        }
        at += 2 + static_cast<uchar>(jpeg.at(at + 2)) * 256 + static_cast<uchar>(jpeg.at(at + 3));
    }
    return {};
}

TEST_F(ThumbnailsTest, PictureOf30000By30000_Is481_WithoutBeingDecoded)
{
    GivenPicture(u"small.jpg", {40, 30}, Qt::red);
    const QByteArray huge = WithToldSize(home.ReadFile(u"small.jpg"), 30000, 30000);
    ASSERT_FALSE(huge.isEmpty());
    const QString path = home.WriteFile(u"huge.jpg", huge);
    EXPECT_EQ(RefusalOf([&] { thumbnails.Load(files, path, dots); }), ErrorNumber::InvalidPicture);
}

TEST_F(ThumbnailsTest, PictureLyingOnItsSide_StandsUpright)
{
    QImage halves(200, 100, QImage::Format_RGB32);
    halves.fill(Qt::red);
    QPainter(&halves).fillRect(100, 0, 100, 100, Qt::blue);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    halves.save(&buffer, "jpg", 95);
    // Turned clockwise by a quarter, as a camera says that was held upright.
    const QByteArray orientation = QByteArray::fromHex("ffe1002245786966000049492a000800000001001201030001000000"
                                                       "0600000000000000");
    jpeg.insert(2, orientation);
    const QImage shown = thumbnails.Load(files, home.WriteFile(u"turned.jpg", jpeg), dots);
    EXPECT_EQ(shown.size(), dots);
    EXPECT_TRUE(IsLike(shown.pixelColor(25, 8), Qt::red));
    EXPECT_TRUE(IsLike(shown.pixelColor(25, 48), Qt::blue));
}

} // namespace
} // namespace lineforge
