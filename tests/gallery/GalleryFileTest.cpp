#include "gallery/GalleryFile.h"

#include "gallery/GalleryTest.h"

namespace lineforge
{
namespace
{

TEST(GalleryKindTest, IsToldByTheLastThreeCharacters)
{
    const std::pair<QStringView, std::optional<GalleryKind>> kinds[] = {
        {u"A001_01.jpg", GalleryKind::Picture},
        {u"A001_01.JPG", GalleryKind::Picture},
        {u"A001_01.bmp", GalleryKind::Picture},
        {u"A001_01.Wav", GalleryKind::Sound},
        {u"A001_01.AVI", GalleryKind::Video},
        {u"A001_01.txt", GalleryKind::Text},
        {u"A001_01.jpeg", std::nullopt},
        {u"A001_01.png", std::nullopt},
        {u"7", std::nullopt},
        {u"", std::nullopt},
    };
    for (const auto& [name, kind] : kinds)
        EXPECT_EQ(KindOf(name), kind) << name.toUtf8().constData();
}

TEST(GallerySubscriptTest, IsReadFromCharactersSixAndSeven)
{
    EXPECT_EQ(SubscriptOf(u"A001_01.jpg"_s), 1);
    EXPECT_EQ(SubscriptOf(u"A001_98.jpg"_s), 98);
    EXPECT_EQ(SubscriptOf(u"A001_7.jpg"_s), 7);
    EXPECT_EQ(SubscriptOf(u"A001_123.jpg"_s), 12);
    EXPECT_EQ(SubscriptOf(u"A001_5"_s), 5);
    for (const QString& name : {u"A001_.jpg"_s, u"A001_ab.jpg"_s, u"A001_"_s, u"A001_1x.jpg"_s})
        EXPECT_EQ(RefusalOf([&] { SubscriptOf(name); }), ErrorNumber::TypeMismatch) << name.toStdString();
}

using GalleryPathTest = GalleryTest;

TEST_F(GalleryPathTest, TakesTheNameFromTheEndOfATag)
{
    OpenGallery();
    const QString path = GalleryPathOf(u"A001_04.jpg");
    EXPECT_EQ(GalleryPath(P.Gallery, u"A001_04.jpg"_s), path);
    EXPECT_EQ(GalleryPath(P.Gallery, path), path);
    EXPECT_EQ(GalleryPath(P.Gallery, u"A001_4.jpg"_s), GalleryPathOf(u"A001_4.jpg"));
    EXPECT_EQ(GalleryPath(P.Gallery, GalleryPathOf(u"A001_4.jpg")), GalleryPathOf(u"A001_4.jpg"));
    EXPECT_EQ(GalleryPath(P.Gallery, u"A001_01 Été à la mer.jpg"_s), GalleryPathOf(u"A001_01 Été à la mer.jpg"));
}

} // namespace
} // namespace lineforge
