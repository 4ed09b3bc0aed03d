#include "output/Paper.h"

#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr double twipsAPoint = 20;
constexpr int patience = 60'000; // milliseconds

QByteArray OutputOf(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForStarted()) {
        ADD_FAILURE() << qPrintable(tool) << " can't be started; it comes with the package poppler-utils";
        return {};
    }
    if (!process.waitForFinished(patience) || process.exitCode() != 0)
        ADD_FAILURE() << qPrintable(tool) << " has failed: " << process.readAllStandardError().constData();
    return process.readAllStandardOutput();
}

// The value behind a name in the report on the document.
QString Fact(const QString& job, const QString& name)
{
    const QString report = QString::fromUtf8(OutputOf(u"pdfinfo"_s, {job}));
    const QRegularExpression line(u"^%1:\\s*(.*)$"_s.arg(name), QRegularExpression::MultilineOption);
    return line.match(report).captured(1);
}
} // namespace

int PagesOf(const QString& job)
{
    return Fact(job, u"Pages"_s).toInt();
}

QSize PaperOf(const QString& job)
{
    const QRegularExpression size(u"([\\d.]+) x ([\\d.]+)"_s);
    const QRegularExpressionMatch match = size.match(Fact(job, u"Page size"_s));
    return {qRound(match.captured(1).toDouble()), qRound(match.captured(2).toDouble())};
}

QStringList LinesOn(const QString& job)
{
    const QString text =
        QString::fromUtf8(OutputOf(u"pdftotext"_s, {u"-layout"_s, u"-enc"_s, u"UTF-8"_s, job, u"-"_s}));
    QStringList lines;
    for (const QString& line : text.split(QRegularExpression(u"[\\n\\f]"_s)))
        if (const QString words = line.simplified(); !words.isEmpty())
            lines.push_back(words);
    return lines;
}

std::vector<PrintedWord> WordsOn(const QString& job)
{
    const QString report = QString::fromUtf8(OutputOf(u"pdftotext"_s, {u"-bbox"_s, job, u"-"_s}));
    const QRegularExpression item(
        u"<page |<word xMin=\"(.*?)\" yMin=\"(.*?)\" xMax=\"(.*?)\" yMax=\"(.*?)\">(.*?)</word>"_s);
    std::vector<PrintedWord> words;
    int page = 0;
    for (const QRegularExpressionMatch& match : item.globalMatch(report)) {
        if (!match.hasCaptured(1)) {
            ++page;
            continue;
        }
        const auto twips = [&](int number) { return match.captured(number).toDouble() * twipsAPoint; };
        words.push_back({match.captured(5), page, QRectF(QPointF(twips(1), twips(2)), QPointF(twips(3), twips(4)))});
    }
    return words;
}

PrintedWord WordOn(const QString& job, QStringView text)
{
    for (const PrintedWord& word : WordsOn(job))
        if (word.Text == text)
            return word;
    ADD_FAILURE() << "not on the paper: " << qPrintable(text.toString());
    return {};
}

QStringList FontsOf(const QString& job)
{
    // Two lines of headings; the name comes first.
    const QStringList lines = QString::fromUtf8(OutputOf(u"pdffonts"_s, {job})).split(u'\n', Qt::SkipEmptyParts);
    QStringList fonts;
    for (const QString& line : lines.sliced(std::min<qsizetype>(2, lines.size())))
        fonts.push_back(line.section(u' ', 0, 0));
    return fonts;
}

QImage PictureOf(const QString& job)
{
    const QByteArray bytes = OutputOf(u"pdftoppm"_s, {u"-r"_s, u"288"_s, u"-aa"_s, u"no"_s, u"-aaVector"_s, u"no"_s,
                                                      u"-f"_s, u"1"_s, u"-l"_s, u"1"_s, job});
    return QImage::fromData(bytes, "PPM").convertToFormat(QImage::Format_RGB32);
}

QStringList RecordsOn(const QString& job)
{
    const QString heading = u"ANCESTRAL RECORD "_s;
    QStringList records;
    for (const QString& line : LinesOn(job))
        if (line.startsWith(heading))
            records.push_back(line.sliced(heading.size()));
    return records;
}

} // namespace lineforge
