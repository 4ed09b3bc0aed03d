#include "check/ReportText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace lineforge::check
{

using namespace Qt::StringLiterals;

namespace
{
QString NameOf(Kind kind)
{
    switch (kind) {
    case Kind::Unread:
        return u"unread"_s;
    case Kind::Registry:
        return u"registry"_s;
    case Kind::Database:
        return u"database"_s;
    case Kind::RecordNumber:
        return u"record-number"_s;
    case Kind::Link:
        return u"link"_s;
    case Kind::MapFile:
        return u"map-file"_s;
    case Kind::MapItem:
        return u"map-item"_s;
    case Kind::Box:
        return u"box"_s;
    case Kind::SubjectPicture:
        return u"subject-picture"_s;
    case Kind::GalleryFile:
        return u"gallery-file"_s;
    case Kind::Leftover:
        return u"leftover"_s;
    case Kind::OldDatabase:
        return u"old-database"_s;
    case Kind::WithoutBox:
        return u"without-box"_s;
    case Kind::WithoutPicture:
        return u"without-picture"_s;
    case Kind::WithoutGallery:
        return u"without-gallery"_s;
    case Kind::StrangeFile:
        return u"strange-file"_s;
    }
    return {};
}

QString Counted(qsizetype number, const QString& one, const QString& many)
{
    return QString::number(number) + u' ' + (number == 1 ? one : many);
}

QString Seen(const Tally& seen)
{
    return u"Looked at "_s + Counted(seen.Branches, u"branch"_s, u"branches"_s) + u" with " +
           Counted(seen.Records, u"record"_s, u"records"_s) + u", " + Counted(seen.Boxes, u"box"_s, u"boxes"_s) +
           u", " + Counted(seen.Pictures, u"picture"_s, u"pictures"_s) + u" of people and " +
           Counted(seen.GalleryFiles, u"gallery file"_s, u"gallery files"_s) + u'.';
}

QString Sum(const Report& report)
{
    const qsizetype unread = std::ranges::count(report.Findings, Kind::Unread, &Finding::Kind);
    const qsizetype notes = std::ranges::count_if(report.Findings, IsNote, &Finding::Kind);
    const qsizetype wrong = static_cast<qsizetype>(report.Findings.size()) - unread - notes;
    QString sum =
        wrong == 0 ? u"Nothing wrong was found."_s : Counted(wrong, u"thing is wrong."_s, u"things are wrong."_s);
    if (unread > 0)
        sum += u' ' + Counted(unread, u"place"_s, u"places"_s) + u" couldn't be looked at, so there may be more.";
    return sum;
}

QString LineOf(const Finding& finding, const QString& home)
{
    QStringList parts{finding.File.isEmpty() ? home : finding.File};
    if (!finding.Record.isEmpty())
        parts += finding.Record;
    if (IsNote(finding.Kind))
        parts += u"note"_s;
    return (parts + QStringList(finding.Text)).join(u": "_s);
}

QJsonArray ArrayOf(const Report& report, bool notes)
{
    QJsonArray array;
    for (const Finding& finding : report.Findings)
        if (IsNote(finding.Kind) == notes)
            array.append(QJsonObject{{u"kind"_s, NameOf(finding.Kind)},
                                     {u"file"_s, finding.File},
                                     {u"record"_s, finding.Record},
                                     {u"text"_s, finding.Text}});
    return array;
}
} // namespace

QByteArray ReportText(const Report& report, const QString& home)
{
    QStringList lines;
    for (const Finding& finding : report.Findings)
        lines += LineOf(finding, home);
    lines += {Seen(report.Seen), Sum(report)};
    return (lines.join(u'\n') + u'\n').toUtf8();
}

QByteArray ReportJson(const Report& report, const QString& home)
{
    const Tally& seen = report.Seen;
    const QJsonObject lookedAt{{u"branches"_s, seen.Branches},
                               {u"records"_s, seen.Records},
                               {u"boxes"_s, seen.Boxes},
                               {u"pictures"_s, seen.Pictures},
                               {u"gallery-files"_s, seen.GalleryFiles}};
    const QJsonObject whole{{u"home"_s, home},
                            {u"status"_s, static_cast<int>(VerdictOf(report))},
                            {u"looked-at"_s, lookedAt},
                            {u"findings"_s, ArrayOf(report, false)},
                            {u"notes"_s, ArrayOf(report, true)}};
    return QJsonDocument(whole).toJson();
}

} // namespace lineforge::check
