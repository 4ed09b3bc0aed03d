#include "Drawings.h"
#include "Paint.h"

#include <QLinearGradient>
#include <QPainterPath>

#include <array>

namespace lineforge::makehome
{

namespace
{

const QColor gold(222, 176, 70);
const QColor goldShade(128, 92, 24);

QPainterPath ShieldOutline()
{
    QPainterPath path(QPointF(130, 84));
    path.lineTo(270, 84);
    path.lineTo(270, 168);
    path.cubicTo(QPointF(270, 222), QPointF(232, 252), QPointF(200, 268));
    path.cubicTo(QPointF(168, 252), QPointF(130, 222), QPointF(130, 168));
    path.closeSubpath();
    return path;
}

QPainterPath OakTree(const QPointF& foot)
{
    QPainterPath path;
    path.addRect(QRectF(foot.x() - 4, foot.y() - 26, 8, 26));
    for (const QPointF& crown : {QPointF(0, -44), QPointF(-14, -34), QPointF(14, -34), QPointF(0, -30)}) {
        QPainterPath leaf;
        leaf.addEllipse(foot + crown, 13, 12);
        path = path.united(leaf);
    }
    return path;
}

void DrawQuarters(QPainter& painter)
{
    painter.fillRect(QRectF(130, 84, 70, 90), QColor(176, 32, 44));
    painter.fillRect(QRectF(200, 84, 70, 90), QColor(246, 240, 222));
    painter.fillRect(QRectF(130, 174, 70, 100), QColor(246, 240, 222));
    painter.fillRect(QRectF(200, 174, 70, 100), QColor(34, 68, 130));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(44, 110, 62));
    painter.drawPath(OakTree(QPointF(235, 160)));
    painter.setBrush(gold);
    painter.drawPolygon(QPolygonF{QPointF(130, 158), QPointF(165, 118), QPointF(200, 158), QPointF(200, 136),
                                  QPointF(165, 96), QPointF(130, 136)});
    painter.setBrush(QColor(34, 68, 130));
    for (int wave = 0; wave < 3; ++wave) {
        QPainterPath path(QPointF(126, 188 + wave * 20));
        path.cubicTo(QPointF(150, 176 + wave * 20), QPointF(172, 204 + wave * 20), QPointF(200, 188 + wave * 20));
        path.lineTo(200, 197 + wave * 20);
        path.cubicTo(QPointF(172, 213 + wave * 20), QPointF(150, 185 + wave * 20), QPointF(126, 197 + wave * 20));
        path.closeSubpath();
        painter.drawPath(path);
    }
    painter.setBrush(gold);
    for (const QPointF& disc : {QPointF(216, 190), QPointF(248, 190), QPointF(222, 216)}) {
        painter.drawEllipse(disc, 8, 8);
    }
}

void DrawCoronet(QPainter& painter)
{
    QPainterPath rim(QPointF(152, 76));
    rim.lineTo(144, 38);
    rim.lineTo(168, 56);
    rim.lineTo(184, 28);
    rim.lineTo(200, 54);
    rim.lineTo(216, 28);
    rim.lineTo(232, 56);
    rim.lineTo(256, 38);
    rim.lineTo(248, 76);
    rim.closeSubpath();
    painter.setPen(QPen(goldShade, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(gold);
    painter.drawPath(rim);
    painter.setBrush(QColor(250, 246, 236));
    for (const QPointF& pearl : {QPointF(144, 36), QPointF(184, 25), QPointF(216, 25), QPointF(256, 36)}) {
        painter.drawEllipse(pearl, 5, 5);
    }
    painter.setBrush(QColor(176, 32, 44));
    painter.drawEllipse(QPointF(200, 66), 5, 4);
    painter.drawEllipse(QPointF(174, 67), 4, 3);
    painter.drawEllipse(QPointF(226, 67), 4, 3);
}

void DrawSprig(QPainter& painter, qreal direction)
{
    painter.save();
    painter.translate(200, 0);
    painter.scale(direction, 1);
    painter.setPen(QPen(QColor(70, 84, 40), 3, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    QPainterPath stem(QPointF(16, 280));
    stem.cubicTo(QPointF(80, 272), QPointF(128, 216), QPointF(122, 110));
    painter.drawPath(stem);
    painter.setPen(QPen(QColor(60, 84, 40), 1));
    painter.setBrush(QColor(110, 148, 76));
    for (int leaf = 0; leaf < 9; ++leaf) {
        const qreal place = 0.14 + 0.095 * leaf;
        painter.save();
        painter.translate(stem.pointAtPercent(place));
        painter.rotate(-stem.angleAtPercent(place) + (leaf % 2 == 0 ? 42 : -42));
        painter.drawEllipse(QPointF(14, 0), 14, 6);
        painter.restore();
    }
    painter.restore();
}

} // namespace

QImage ShieldDrawing()
{
    QImage picture = Canvas(drawingSize, QColor(244, 236, 216));
    SmoothPainter painter(picture);
    QLinearGradient ground(0, 0, 0, 300);
    ground.setColorAt(0.0, QColor(250, 246, 232));
    ground.setColorAt(1.0, QColor(230, 216, 184));
    painter.fillRect(picture.rect(), ground);
    DrawSprig(painter, 1);
    DrawSprig(painter, -1);
    painter.save();
    painter.setClipPath(ShieldOutline());
    DrawQuarters(painter);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(goldShade, 7));
    painter.drawPath(ShieldOutline());
    painter.setPen(QPen(gold, 4));
    painter.drawPath(ShieldOutline());
    DrawCoronet(painter);
    return picture;
}

} // namespace lineforge::makehome
