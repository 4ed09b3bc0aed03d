#include "monkey/Journal.h"

#include <QFile>

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;

namespace
{
const QString endMark = u"end: "_s;
const QString findingMark = u"FINDING: "_s;
} // namespace

Journal::Journal(const QString& file, QMap<QString, QString> places)
    : file_(open(QFile::encodeName(file).constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600)),
      places_(std::move(places))
{
    if (file_ < 0)
        qFatal("can't write %s", qUtf8Printable(file));
}

Journal::~Journal()
{
    close(file_);
}

void Journal::Step(const QString& words)
{
    Write(QString::number(++steps_) + u' ' + words);
}

void Journal::Note(const QString& words)
{
    Write(u"    "_s + words);
}

void Journal::End(const QString& kind)
{
    Write(endMark + kind);
}

void Journal::Finding(const QString& words)
{
    Write(findingMark + words);
}

void Journal::Write(QString line)
{
    for (auto place = places_.begin(); place != places_.end(); ++place)
        line.replace(place.key(), place.value());
    line.replace(u'\n', u'|');
    const QByteArray bytes = line.toUtf8() + '\n';
    if (write(file_, bytes.constData(), static_cast<std::size_t>(bytes.size())) != bytes.size())
        qFatal("the journal can't be written");
}

Story::Story(const QString& file)
{
    QFile journal(file);
    if (journal.open(QFile::ReadOnly))
        Lines = QString::fromUtf8(journal.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : Lines) {
        if (line.front().isDigit())
            ++Steps;
        else if (line.startsWith(endMark))
            Ends += line.sliced(endMark.size());
        else if (line.startsWith(findingMark))
            Findings += line.sliced(findingMark.size());
    }
}

QStringList Story::Last(qsizetype lines) const
{
    return Lines.last(std::min(lines, Lines.size()));
}

bool Story::TellsOfExportTo(const QString& directory) const
{
    return std::ranges::any_of(Lines, [question = u"\"Export Directory and Files\": "_s,
                                       place = QString(u'|' + directory + u'|')](const QString& line) {
        // A list of directories may end its path with the separator.
        return line.contains(question) && QString(line).replace(u"//"_s, u"/"_s).contains(place);
    });
}

bool Story::TellsOfDeletionOf(const QString& directory) const
{
    const QString question = u"Database, Gallery and Files\": All files in "_s + directory + u'|';
    return std::ranges::any_of(Lines, [&](const QString& line) { return line.contains(question); });
}

} // namespace lineforge::monkey
