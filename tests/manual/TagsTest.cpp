#include "gedcom/GedcomTest.h"
#include "manual/Pages.h"
#include "manual/Sources.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

namespace lineforge
{

namespace
{
class ManualTags : public GedcomTest
{
protected:
    // The first column of a table of the page; a cell may hold several.
    static QSet<QString> Described(const QString& table)
    {
        QSet<QString> tags;
        for (const QStringList& row : manual::PageNamed(u"gedcom.html"_s).Rows.value(table))
            for (const QString& tag : row.first().split(u", "_s))
                tags.insert(tag);
        return tags;
    }
};

// "0 @N01@ SUBN", "2 CONT York"; one line begins with a comma.
QString TagOf(const QString& line)
{
    static const QRegularExpression parts(u"^,?\\d (?:@\\w+@ )?([A-Z]+)"_s);
    return parts.match(line).captured(1);
}

TEST_F(ManualTags, EveryTagOfAWrittenFileIsListed_AndNoOther)
{
    GivenPeople({{u"A001"_s, u"A002"_s}, {u"A002"_s}});
    for (TextBox* box : P.Form12->Texts())
        box->Text = u"A001"_s;

    CreateFile();

    QSet<QString> written;
    for (const QString& line : QString::fromUtf8(File()).split(u"\r\n"_s, Qt::SkipEmptyParts))
        written.insert(TagOf(line));
    EXPECT_EQ(Described(u"written-tags"_s), written);
}

// What the conversion looks for stands in its sources as texts of capitals.
TEST_F(ManualTags, EveryTagThatIsReadIsListed_AndNoOther)
{
    static const QRegularExpression capitals(u"^[A-Z]{3,4}$"_s);
    QSet<QString> read;
    for (const QString& file :
         {u"GedSeek.cpp"_s, u"FamilyReport.cpp"_s, u"GedLines.cpp"_s, u"GedFields.cpp"_s, u"GedcomConversion.cpp"_s})
        for (const QString& text : manual::Literals(manual::SourceText(u"gedcom/report/"_s + file)))
            if (capitals.match(text).hasMatch())
                read.insert(text);
    EXPECT_EQ(Described(u"read-tags"_s), read);
}
} // namespace

} // namespace lineforge
