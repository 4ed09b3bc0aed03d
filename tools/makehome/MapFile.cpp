#include "MapFile.h"

#include "Files.h"

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

QString Number(int value)
{
    return QString::number(value) + u',';
}

QString Colour(const QColor& colour)
{
    return Number(colour.red() + colour.green() * 0x100 + colour.blue() * 0x10000);
}

QString Point(const QPoint& point)
{
    return Number(point.x()) + Number(point.y());
}

QString Boxes(const MapSource& map, const QList<Branch>& branches)
{
    QString list;
    for (const MapBox& box : map.boxes) {
        list += Point(box.corner) + Colour(box.colour) + box.file + u',';
        list += FindRecord(branches, box.file)->FirstForename() + u',';
    }
    return list;
}

QString Lines(const MapSource& map)
{
    QString list;
    for (const MapLine& line : map.lines) {
        list += Point(line.line.p1()) + Point(line.line.p2()) + Colour(line.colour);
    }
    return list;
}

QString Texts(const MapSource& map)
{
    QString list;
    for (const MapText& text : map.texts) {
        list +=
            Point(text.corner) + text.text + u',' + text.fontName + u',' + Number(text.fontSize) + Colour(text.colour);
    }
    return list;
}

} // namespace

void WriteMapFile(const QString& path, const Branch& branch, const QList<Branch>& branches)
{
    WriteCrLfLines(path,
                   {WarningLine(), u"[%1]"_s.arg(branch.DirectoryName()), u"[Boxes]"_s, Boxes(branch.map, branches),
                    u"[Lines]"_s, Lines(branch.map), u"[Text]"_s, Texts(branch.map)});
}

} // namespace lineforge::makehome
