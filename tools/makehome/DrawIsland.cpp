#include "Drawings.h"
#include "Paint.h"

#include <QPainterPath>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

const QColor ink(84, 60, 34);

// A rough lozenge with the river mouth cut into its north coast: a sketch from memory, not a survey.
QPainterPath Coast()
{
    QPainterPath path(QPointF(52, 168));
    path.cubicTo(QPointF(78, 150), QPointF(104, 142), QPointF(132, 132));
    path.cubicTo(QPointF(158, 122), QPointF(176, 106), QPointF(198, 98));
    path.lineTo(203, 118);
    path.lineTo(208, 97);
    path.cubicTo(QPointF(232, 92), QPointF(252, 96), QPointF(272, 110));
    path.cubicTo(QPointF(300, 128), QPointF(326, 132), QPointF(344, 152));
    path.cubicTo(QPointF(330, 168), QPointF(318, 182), QPointF(296, 192));
    path.cubicTo(QPointF(268, 206), QPointF(236, 224), QPointF(206, 232));
    path.cubicTo(QPointF(172, 226), QPointF(146, 204), QPointF(116, 192));
    path.cubicTo(QPointF(94, 184), QPointF(72, 180), QPointF(52, 168));
    path.closeSubpath();
    return path;
}

void DrawShoals(QPainter& painter, const QPainterPath& coast)
{
    painter.setBrush(Qt::NoBrush);
    for (int ring = 3; ring > 0; --ring) {
        painter.setPen(QPen(QColor(110, 150, 166, 40), 10 * ring, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(coast);
    }
}

void DrawDowns(QPainter& painter)
{
    painter.setPen(QPen(QColor(110, 120, 70), 1.4));
    painter.setBrush(Qt::NoBrush);
    for (const QPointF& hill : {QPointF(108, 168), QPointF(128, 166), QPointF(150, 172), QPointF(176, 176),
                                QPointF(226, 182), QPointF(252, 174), QPointF(276, 168), QPointF(208, 206)}) {
        QPainterPath hump(hill + QPointF(-9, 4));
        hump.quadTo(hill + QPointF(0, -12), hill + QPointF(9, 4));
        painter.drawPath(hump);
    }
}

void DrawPlace(QPainter& painter, const QPointF& place, const QPointF& nameFrom, const QString& name)
{
    painter.setPen(QPen(ink, 1));
    painter.setBrush(QColor(176, 40, 44));
    painter.drawEllipse(place, 4, 4);
    painter.setPen(ink);
    painter.setFont(SerifFont(15, true));
    painter.drawText(nameFrom, name);
}

void DrawCompass(QPainter& painter, const QPointF& middle)
{
    painter.save();
    painter.translate(middle);
    painter.setPen(QPen(ink, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(0, 0), 20, 20);
    for (int point = 0; point < 4; ++point) {
        painter.setBrush(point == 0 ? QColor(176, 40, 44) : ink);
        painter.drawPolygon(QPolygonF{QPointF(-5, -5), QPointF(0, -30), QPointF(5, -5)});
        painter.rotate(90);
    }
    painter.setFont(SerifFont(15, true));
    painter.drawText(QRectF(-10, -50, 20, 18), Qt::AlignCenter, u"N"_s);
    painter.restore();
}

} // namespace

QImage IslandDrawing()
{
    QImage picture = Canvas(drawingSize, QColor(206, 224, 224));
    SmoothPainter painter(picture);
    const QPainterPath coast = Coast();
    DrawShoals(painter, coast);
    painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(240, 228, 188));
    painter.drawPath(coast);
    painter.setPen(QPen(QColor(84, 130, 160), 2));
    painter.drawPolyline(QPolygonF{QPointF(203, 116), QPointF(200, 134), QPointF(205, 150)});
    DrawDowns(painter);
    DrawPlace(painter, QPointF(220, 104), QPointF(216, 84), u"Osborne"_s);
    DrawPlace(painter, QPointF(213, 116), QPointF(221, 141), u"Whippingham"_s);
    DrawPlace(painter, QPointF(195, 104), QPointF(142, 92), u"Cowes"_s);
    DrawCompass(painter, QPointF(60, 70));
    painter.setPen(QColor(60, 96, 118));
    QFont sea = SerifFont(18);
    sea.setItalic(true);
    painter.setFont(sea);
    painter.drawText(QPointF(108, 54), u"The Solent"_s);
    painter.drawText(QPointF(222, 272), u"English Channel"_s);
    return picture;
}

} // namespace lineforge::makehome
