#include "MapSource.h"

#include "Failure.h"
#include "Files.h"

#include <QRegularExpression>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

struct SourceLine {
    QString text;
    qsizetype number;
};

QColor ReadColour(const MapSource& map, const QString& name, qsizetype line)
{
    const QColor colour = QColor::fromString(name);
    if (!colour.isValid()) {
        throw FailureAt(map.path, line, u"there is no colour \"%1\""_s.arg(name));
    }
    return colour;
}

bool ReadBox(MapSource& map, const SourceLine& source)
{
    static const QRegularExpression pattern(u"^box (\\d+) (\\d+) (\\S+) ([A-Z]\\d{3})$"_s);
    const QRegularExpressionMatch match = pattern.match(source.text);
    if (!match.hasMatch()) {
        return false;
    }
    map.boxes.append({QPoint(match.captured(1).toInt(), match.captured(2).toInt()),
                      ReadColour(map, match.captured(3), source.number), match.captured(4), source.number});
    return true;
}

bool ReadLine(MapSource& map, const SourceLine& source)
{
    static const QRegularExpression pattern(u"^line (\\d+) (\\d+) (\\d+) (\\d+) (\\S+)$"_s);
    const QRegularExpressionMatch match = pattern.match(source.text);
    if (!match.hasMatch()) {
        return false;
    }
    map.lines.append({QLine(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
                            match.captured(4).toInt()),
                      ReadColour(map, match.captured(5), source.number), source.number});
    return true;
}

bool ReadCaption(MapSource& map, const SourceLine& source)
{
    static const QRegularExpression pattern(
        u"^text (\\d+) (\\d+) (?:\"([^\"]+)\"|([^\"\\s]\\S*)) (\\d+) (\\S+) (.+)$"_s);
    const QRegularExpressionMatch match = pattern.match(source.text);
    if (!match.hasMatch()) {
        return false;
    }
    map.texts.append({QPoint(match.captured(1).toInt(), match.captured(2).toInt()), match.captured(7),
                      match.captured(3) + match.captured(4), match.captured(5).toInt(),
                      ReadColour(map, match.captured(6), source.number), source.number});
    return true;
}

} // namespace

MapSource ReadMapSource(const QString& path)
{
    MapSource map;
    map.path = path;
    qsizetype number = 0;
    for (const QString& rawLine : ReadLines(path)) {
        ++number;
        const SourceLine line{rawLine.simplified(), number};
        if (line.text.isEmpty() || line.text.startsWith(u'#')) {
            continue;
        }
        if (!ReadBox(map, line) && !ReadLine(map, line) && !ReadCaption(map, line)) {
            throw FailureAt(path, number, u"this is no box, line or text: %1"_s.arg(line.text));
        }
    }
    return map;
}

} // namespace lineforge::makehome
