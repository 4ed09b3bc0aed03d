#include "manual/Pages.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QSet>

#include <gmock/gmock.h>
#include <map>

namespace lineforge::manual
{

using namespace Qt::StringLiterals;

namespace
{
constexpr qint64 largestPictures = 2'000'000; // bytes, all of them together
constexpr int widestPicture = 520;            // pixels; the help window beside its contents is no wider

const QString contents = u"index.html"_s;

// A page reads as broken markup would be shown: not at all.
TEST(ManualPages, AreWellFormed_AndHaveATitleOfTheirOwn)
{
    QSet<QString> titles;
    for (const Page& page : AllPages()) {
        EXPECT_EQ(page.Fault, QString()) << page.Name.toStdString();
        EXPECT_FALSE(page.Title.isEmpty()) << page.Name.toStdString();
        EXPECT_FALSE(titles.contains(page.Title)) << page.Title.toStdString() << " stands twice";
        titles.insert(page.Title);
    }
    EXPECT_GE(titles.size(), 20) << "the manual was found";
}

TEST(ManualPages, EveryLinkLeadsToAPage_AndToAPlaceOnIt)
{
    std::map<QString, Page> pages;
    for (const Page& page : AllPages())
        pages.emplace(page.Name, page);
    for (const auto& [name, page] : pages)
        for (const QString& link : page.Links) {
            const QString file = link.section(u'#', 0, 0).isEmpty() ? name : link.section(u'#', 0, 0);
            const QString place = link.section(u'#', 1);
            const std::string where = QString(name + u" -> " + link).toStdString();
            if (!file.endsWith(u".html")) {
                EXPECT_TRUE(QFileInfo(Directory() + u'/' + file).isFile()) << where;
                continue;
            }
            const auto target = pages.find(file);
            ASSERT_NE(target, pages.end()) << where;
            EXPECT_TRUE(place.isEmpty() || target->second.Ids.contains(place)) << where;
        }
}

TEST(ManualPages, NoPlaceHasTheNameOfAnother)
{
    for (const Page& page : AllPages())
        EXPECT_EQ(page.Ids.size(), QSet<QString>(page.Ids.begin(), page.Ids.end()).size()) << page.Name.toStdString();
}

TEST(ManualPages, EveryPageStandsInTheContents_AndLeadsBackThere)
{
    const QStringList listed = PageNamed(contents).Links;
    for (const Page& page : AllPages()) {
        if (page.Name == contents)
            continue;
        EXPECT_TRUE(listed.contains(page.Name)) << page.Name.toStdString();
        EXPECT_TRUE(page.Links.contains(contents)) << page.Name.toStdString();
    }
}

TEST(ManualPictures, AreThere_InASizeThatFits_AndToldInWords)
{
    for (const Page& page : AllPages())
        for (const Picture& picture : page.Pictures) {
            const QImage image(Directory() + u'/' + picture.Source);
            EXPECT_FALSE(image.isNull()) << picture.Source.toStdString();
            EXPECT_LE(image.width(), widestPicture) << picture.Source.toStdString();
            EXPECT_GT(picture.Alternative.size(), 10) << picture.Source.toStdString();
        }
}

TEST(ManualPictures, AreAllShown_AndSmallTogether)
{
    QStringList shown;
    for (const Page& page : AllPages())
        for (const Picture& picture : page.Pictures)
            shown += picture.Source;
    qint64 size = 0;
    for (const QFileInfo& file : QDir(Directory() + u"/pictures"_s).entryInfoList(QDir::Files)) {
        EXPECT_TRUE(shown.contains(u"pictures/"_s + file.fileName())) << file.fileName().toStdString();
        size += file.size();
    }
    EXPECT_LE(size, largestPictures);
}
} // namespace

} // namespace lineforge::manual
