#pragma once

#include <QString>
#include <QUrl>

#include <memory>
#include <optional>
#include <vector>

class QXmlStreamReader;

namespace lineforge
{

// A place in the manual to go to: the page or section, what it is called, and what it says.
struct HelpSection {
    QString Title;
    QUrl Place;
    QString Text;
};

// The first section of a page is its beginning, under the page's own title.
struct HelpPage {
    std::vector<HelpSection> Sections;

    const HelpSection& Beginning() const { return Sections.front(); }
};

struct HelpChapter {
    QString Title;
    std::vector<HelpPage> Pages;
};

struct HelpHit {
    QString Title;
    QUrl Place;
};

// The manual in one file, with all its pages and pictures, as the build bundles it. The file stays open as long as the
// book.
class HelpBook
{
public:
    // Nothing when the file isn't such a bundle or has no contents page.
    [[nodiscard]] static std::unique_ptr<HelpBook> Open(const QString& path);
    ~HelpBook();
    HelpBook(const HelpBook&) = delete;
    HelpBook& operator=(const HelpBook&) = delete;

    QUrl ContentsPage() const { return PlaceOf(QStringLiteral("index.html")); }
    // As the contents page lists them.
    const std::vector<HelpChapter>& Chapters() const { return chapters_; }
    bool Has(const QUrl& place) const;

    // The sections in which all the words stand, case ignored; those with all of them in the title come first.
    std::vector<HelpHit> Find(const QString& words) const;

private:
    HelpBook(QString path, QString root);

    QUrl PlaceOf(const QString& page) const;
    void ReadContents();
    void ReadEntry(QXmlStreamReader& contents);
    std::optional<HelpPage> ReadPage(const QUrl& place) const;

    QString path_;
    QString root_; // where its files stand among the program's resources
    std::vector<HelpChapter> chapters_;
};

} // namespace lineforge
