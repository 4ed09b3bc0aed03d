#include "MapChecks.h"

#include "Failure.h"

#include <QRect>
#include <QSet>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize boxSize(615, 217);
constexpr QSize pictureSize(8415, 12750);

// The forename is printed across the lower edge of its box and needs this much height from the top of it.
constexpr int captionDepth = 290;

constexpr qsizetype mostBoxes = 100;
constexpr qsizetype mostLines = 200;
constexpr qsizetype mostTexts = 200;

QRect BoxArea(const MapBox& box)
{
    return QRect(box.corner, boxSize);
}

bool OnPicture(const QPoint& point)
{
    // An X of nought marks an unused place in the map, so nothing may stand there.
    return point.x() > 0 && point.x() < pictureSize.width() && point.y() >= 0 && point.y() < pictureSize.height();
}

void CheckBox(const MapSource& map, qsizetype index)
{
    const MapBox& box = map.boxes[index];
    const QRect area = BoxArea(box);
    if (!OnPicture(area.topLeft()) || !OnPicture(area.bottomRight())) {
        throw FailureAt(map.path, box.sourceLine, u"the box leaves the picture"_s);
    }
    for (qsizetype other = 0; other < index; ++other) {
        if (BoxArea(map.boxes[other]).intersects(area)) {
            throw FailureAt(map.path, box.sourceLine, u"the box overlaps the one of %1"_s.arg(map.boxes[other].file));
        }
    }
}

void CheckMembers(const Branch& branch, const QList<Branch>& branches)
{
    QSet<QString> shown;
    for (const MapBox& box : branch.map.boxes) {
        if (shown.contains(box.file)) {
            throw FailureAt(branch.map.path, box.sourceLine, u"%1 has a box already"_s.arg(box.file));
        }
        if (!FindRecord(branches, box.file)) {
            throw FailureAt(branch.map.path, box.sourceLine, u"there is no record %1"_s.arg(box.file));
        }
        shown.insert(box.file);
    }
    for (const Record& record : branch.records) {
        if (!shown.contains(record.Value(Field::File))) {
            throw FailureAt(branch.map.path, 1, u"%1 has no box"_s.arg(record.Value(Field::File)));
        }
    }
}

void CheckLine(const MapSource& map, const MapLine& item)
{
    const QLine& line = item.line;
    if (!OnPicture(line.p1()) || !OnPicture(line.p2())) {
        throw FailureAt(map.path, item.sourceLine, u"the line leaves the picture"_s);
    }
    if (line.dx() != 0 && line.dy() != 0) {
        throw FailureAt(map.path, item.sourceLine, u"the lines of the example run level or upright"_s);
    }
    const QRect track = QRect(line.p1(), line.p2()).normalized();
    for (const MapBox& box : map.boxes) {
        const QRect inside = QRect(box.corner, QSize(boxSize.width(), captionDepth)).adjusted(1, 1, -1, -1);
        if (track.intersects(inside)) {
            throw FailureAt(map.path, item.sourceLine, u"the line crosses the box of %1"_s.arg(box.file));
        }
    }
}

void CheckText(const MapSource& map, const MapText& item)
{
    if (!OnPicture(item.corner)) {
        throw FailureAt(map.path, item.sourceLine, u"the text leaves the picture"_s);
    }
    if (item.text.contains(u',') || item.text.contains(u'[') || item.fontName.contains(u',')) {
        throw FailureAt(map.path, item.sourceLine, u"a comma or a bracket would break the map file"_s);
    }
    if (item.fontSize < 1) {
        throw FailureAt(map.path, item.sourceLine, u"the text needs a size"_s);
    }
}

void CheckNumbers(const MapSource& map)
{
    if (map.boxes.size() > mostBoxes || map.lines.size() > mostLines || map.texts.size() > mostTexts) {
        throw FailureAt(
            map.path, 1,
            u"a map holds at most %1 boxes, %2 lines and %3 texts"_s.arg(mostBoxes).arg(mostLines).arg(mostTexts));
    }
}

} // namespace

void CheckMap(const Branch& branch, const QList<Branch>& branches)
{
    CheckNumbers(branch.map);
    CheckMembers(branch, branches);
    for (qsizetype index = 0; index < branch.map.boxes.size(); ++index) {
        CheckBox(branch.map, index);
    }
    for (const MapLine& line : branch.map.lines) {
        CheckLine(branch.map, line);
    }
    for (const MapText& text : branch.map.texts) {
        CheckText(branch.map, text);
    }
}

} // namespace lineforge::makehome
