#include "MapOnDisk.h"

#include "Failure.h"

#include <QStringList>

#include <algorithm>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
// Red is the lowest byte.
QColor ToColour(int number)
{
    return QColor(number & 0xff, number >> 8 & 0xff, number >> 16 & 0xff);
}

// The values below a heading, and an empty one behind the last comma.
QStringList ListOf(const QByteArray& mapFile, const QString& heading)
{
    QStringList lines = QString::fromUtf8(mapFile).split(u'\n');
    for (QString& line : lines)
        line = line.trimmed();
    const qsizetype at = lines.indexOf(heading);
    Expect(at >= 0 && at + 1 < lines.size(), u"a map file with "_s + heading);
    return lines[at + 1].split(u',');
}
} // namespace

std::vector<FiledBox> BoxesOfMap(const QByteArray& mapFile)
{
    constexpr qsizetype valuesABox = 5;
    const QStringList values = ListOf(mapFile, u"[Boxes]"_s);
    std::vector<FiledBox> boxes;
    for (qsizetype at = 0; at + valuesABox <= values.size(); at += valuesABox)
        boxes.push_back(
            {QPoint(values[at].toInt(), values[at + 1].toInt()), ToColour(values[at + 2].toInt()), values[at + 3]});
    return boxes;
}

qsizetype LinesOfMap(const QByteArray& mapFile)
{
    constexpr qsizetype valuesALine = 5;
    return ListOf(mapFile, u"[Lines]"_s).size() / valuesALine;
}

FiledBox BoxOfRecord(const std::vector<FiledBox>& boxes, const QString& file)
{
    const auto found = std::ranges::find(boxes, file, &FiledBox::File);
    Expect(found != boxes.end(), u"a box of record "_s + file + u" in the map file"_s);
    return *found;
}

} // namespace lineforge::tour
