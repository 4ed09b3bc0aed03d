#include "qt/dialogs/HelpBook.h"

#include <QFile>
#include <QResource>
#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QString scheme = u"qrc"_s;

// Each book has a root of its own, so that a new one can be opened while the one before is still shown.
QString NewRoot()
{
    static int books = 0;
    return u"/manual-%1"_s.arg(++books);
}

QString ResourceOf(const QUrl& place)
{
    return u':' + place.path();
}

QByteArray ReadResource(const QUrl& place)
{
    QFile file(ResourceOf(place));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString ElementText(QXmlStreamReader& page)
{
    return page.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
}

bool IsHeading(QStringView element)
{
    return element == u"h1" || element == u"h2" || element == u"h3";
}

bool HasAll(const QString& text, const QStringList& words)
{
    return std::ranges::all_of(words,
                               [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}
} // namespace

std::unique_ptr<HelpBook> HelpBook::Open(const QString& path)
{
    const QString root = NewRoot();
    if (!QResource::registerResource(path, root))
        return nullptr;
    std::unique_ptr<HelpBook> book(new HelpBook(path, root));
    if (!book->Has(book->ContentsPage()))
        return nullptr;
    book->ReadContents();
    return book;
}

HelpBook::HelpBook(QString path, QString root) : path_(std::move(path)), root_(std::move(root)) {}

HelpBook::~HelpBook()
{
    QResource::unregisterResource(path_, root_);
}

QUrl HelpBook::PlaceOf(const QString& page) const
{
    QUrl place;
    place.setScheme(scheme);
    place.setPath(root_ + u'/' + page);
    return place;
}

bool HelpBook::Has(const QUrl& place) const
{
    return place.scheme() == scheme && place.path().startsWith(root_ + u'/') && QFile::exists(ResourceOf(place));
}

// Each heading of the second level begins a chapter, each link below it is a page.
void HelpBook::ReadContents()
{
    QXmlStreamReader contents(ReadResource(ContentsPage()));
    while (!contents.atEnd()) {
        if (contents.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (contents.name() == u"h2")
            chapters_.push_back({ElementText(contents), {}});
        else if (contents.name() == u"a")
            ReadEntry(contents);
    }
}

void HelpBook::ReadEntry(QXmlStreamReader& contents)
{
    const QUrl link(contents.attributes().value(u"href"_s).toString());
    if (chapters_.empty())
        return;
    if (std::optional<HelpPage> page = ReadPage(ContentsPage().resolved(link)))
        chapters_.back().Pages.push_back(*std::move(page));
}

std::optional<HelpPage> HelpBook::ReadPage(const QUrl& place) const
{
    HelpPage page;
    QXmlStreamReader text(ReadResource(place));
    while (!text.atEnd()) {
        text.readNext();
        if (text.isStartElement() && IsHeading(text.name())) {
            QUrl section = place;
            section.setFragment(text.attributes().value(u"id"_s).toString());
            page.Sections.push_back({ElementText(text), section, {}});
        } else if (text.isCharacters() && !page.Sections.empty()) {
            page.Sections.back().Text += text.text();
        }
    }
    if (page.Sections.empty())
        return std::nullopt;
    for (HelpSection& section : page.Sections)
        section.Text = section.Text.simplified();
    return page;
}

std::vector<HelpHit> HelpBook::Find(const QString& words) const
{
    const QStringList sought = words.simplified().split(u' ', Qt::SkipEmptyParts);
    std::vector<HelpHit> inTitle;
    std::vector<HelpHit> inText;
    if (sought.isEmpty())
        return inTitle;
    for (const HelpChapter& chapter : chapters_)
        for (const HelpPage& page : chapter.Pages)
            for (const HelpSection& section : page.Sections) {
                const QString& name = page.Beginning().Title;
                const bool isBeginning = &section == &page.Beginning();
                const HelpHit hit{isBeginning ? name : QString(name + u": " + section.Title), section.Place};
                if (HasAll(section.Title, sought))
                    inTitle.push_back(hit);
                else if (HasAll(section.Title + u' ' + section.Text, sought))
                    inText.push_back(hit);
            }
    inTitle.insert(inTitle.end(), inText.begin(), inText.end());
    return inTitle;
}

} // namespace lineforge
