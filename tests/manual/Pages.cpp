#include "manual/Pages.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace lineforge::manual
{

using namespace Qt::StringLiterals;

namespace
{
// Reads on through a page, keeping what it meets.
class Reader
{
public:
    explicit Reader(Page& page, const QByteArray& bytes) : page_(page), xml_(bytes) {}

    void Read()
    {
        while (!xml_.atEnd()) {
            switch (xml_.readNext()) {
            case QXmlStreamReader::StartElement:
                Begin();
                break;
            case QXmlStreamReader::EndElement:
                End();
                break;
            case QXmlStreamReader::Characters:
                text_ += xml_.text();
                break;
            default:
                break;
            }
        }
        if (xml_.hasError())
            page_.Fault = u"line %1: %2"_s.arg(xml_.lineNumber()).arg(xml_.errorString());
    }

private:
    QString Value(const QString& attribute) const { return xml_.attributes().value(attribute).toString(); }

    void Begin()
    {
        const QStringView name = xml_.name();
        if (const QString id = Value(u"id"_s); !id.isEmpty())
            page_.Ids += id;
        if (name == u"a")
            page_.Links += Value(u"href"_s);
        else if (name == u"link")
            page_.Links += Value(u"href"_s);
        else if (name == u"img")
            page_.Pictures.append({Value(u"src"_s), Value(u"alt"_s).simplified()});
        else if (name == u"dl")
            list_ = Value(u"id"_s).isEmpty() ? Value(u"class"_s) : Value(u"id"_s);
        else if (name == u"table")
            table_ = Value(u"id"_s);
        else if (name == u"tr")
            row_.clear();
        if (name == u"title" || name == u"dt" || name == u"dd" || name == u"td")
            text_.clear();
    }

    void End()
    {
        const QStringView name = xml_.name();
        if (name == u"title")
            page_.Title = text_.simplified();
        else if (name == u"dt")
            page_.Terms[list_].append({text_.simplified(), {}});
        else if (name == u"dd" && !page_.Terms[list_].isEmpty())
            page_.Terms[list_].last().Description = text_.simplified();
        else if (name == u"td")
            row_ += text_.simplified();
        else if (name == u"tr" && !row_.isEmpty() && !table_.isEmpty())
            page_.Rows[table_].append(row_);
    }

    Page& page_;
    QXmlStreamReader xml_;
    QString text_;
    QString list_;
    QString table_;
    QStringList row_;
};
} // namespace

QStringList Page::Names(const QString& list) const
{
    QStringList names;
    for (const Term& term : Terms.value(list))
        names += term.Name;
    return names;
}

QString Directory()
{
    return QStringLiteral(LINEFORGE_MANUAL);
}

Page PageNamed(const QString& name)
{
    Page page;
    page.Name = name;
    QFile file(Directory() + u'/' + name);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "no page " << name.toStdString();
        return page;
    }
    Reader(page, file.readAll()).Read();
    return page;
}

QList<Page> AllPages()
{
    QList<Page> pages;
    for (const QString& name : QDir(Directory()).entryList({u"*.html"_s}, QDir::Files, QDir::Name))
        pages += PageNamed(name);
    return pages;
}

} // namespace lineforge::manual
