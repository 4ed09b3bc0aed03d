#include "Drawings.h"
#include "Paint.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>

namespace lineforge::makehome
{

namespace
{

const QColor goldLine(120, 84, 20);

QLinearGradient Gold(const QRectF& area)
{
    QLinearGradient gold(area.topLeft(), area.topRight());
    gold.setColorAt(0.0, QColor(176, 124, 40));
    gold.setColorAt(0.35, QColor(250, 222, 132));
    gold.setColorAt(0.65, QColor(224, 176, 74));
    gold.setColorAt(1.0, QColor(150, 104, 32));
    return gold;
}

void DrawGround(QPainter& painter, const QColor& light, const QColor& deep)
{
    QRadialGradient ground(QPointF(200, 140), 240);
    ground.setColorAt(0.0, light);
    ground.setColorAt(1.0, deep);
    painter.fillRect(QRectF(0, 0, 400, 300), ground);
}

void DrawCushion(QPainter& painter)
{
    QPainterPath cushion(QPointF(76, 240));
    cushion.cubicTo(QPointF(120, 214), QPointF(280, 214), QPointF(324, 240));
    cushion.cubicTo(QPointF(338, 262), QPointF(330, 270), QPointF(316, 280));
    cushion.cubicTo(QPointF(270, 268), QPointF(130, 268), QPointF(84, 280));
    cushion.cubicTo(QPointF(70, 270), QPointF(62, 262), QPointF(76, 240));
    painter.setPen(QPen(QColor(70, 16, 40), 2));
    painter.setBrush(QColor(134, 36, 74));
    painter.drawPath(cushion);
}

void DrawCap(QPainter& painter)
{
    QPainterPath cap(QPointF(118, 196));
    cap.cubicTo(QPointF(92, 96), QPointF(168, 84), QPointF(200, 104));
    cap.cubicTo(QPointF(232, 84), QPointF(308, 96), QPointF(282, 196));
    cap.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(112, 22, 54));
    painter.drawPath(cap);
    painter.setBrush(Qt::NoBrush);
    for (const qreal side : {-1.0, 1.0}) {
        QPainterPath arch(QPointF(200 + side * 80, 196));
        arch.cubicTo(QPointF(200 + side * 112, 92), QPointF(200 + side * 34, 78), QPointF(200, 102));
        painter.setPen(QPen(goldLine, 12));
        painter.drawPath(arch);
        painter.setPen(QPen(QColor(238, 200, 104), 9));
        painter.drawPath(arch);
    }
}

void DrawBand(QPainter& painter)
{
    const QRectF band(112, 192, 176, 34);
    painter.setPen(QPen(goldLine, 2));
    painter.setBrush(Gold(band));
    painter.drawRoundedRect(band, 8, 8);
    for (int stone = 0; stone < 7; ++stone) {
        painter.setBrush(stone % 2 == 0 ? QColor(40, 86, 160) : QColor(182, 34, 48));
        painter.drawEllipse(QPointF(128 + stone * 24, 209), 7, stone % 2 == 0 ? 9 : 7);
    }
    painter.setBrush(QColor(252, 250, 244));
    for (int pearl = 0; pearl < 5; ++pearl) {
        const qreal lift = pearl % 4 == 0 ? 0 : 6;
        painter.drawEllipse(QPointF(122 + pearl * 39, 186 - lift), 6, 6);
    }
}

void DrawOrb(QPainter& painter)
{
    const QRectF orb(186, 68, 28, 28);
    painter.setPen(QPen(goldLine, 2));
    painter.setBrush(Gold(orb));
    painter.drawEllipse(orb);
    painter.drawRect(QRectF(196, 40, 8, 28));
    painter.drawRect(QRectF(186, 48, 28, 8));
}

void DrawRing(QPainter& painter, const QPointF& middle)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(goldLine, 19));
    painter.drawEllipse(middle, 64, 64);
    painter.setPen(QPen(QBrush(Gold(QRectF(middle.x() - 64, 0, 128, 1))), 15));
    painter.drawEllipse(middle, 64, 64);
}

} // namespace

QImage CrownDrawing()
{
    QImage picture = Canvas(drawingSize, Qt::white);
    SmoothPainter painter(picture);
    DrawGround(painter, QColor(246, 238, 220), QColor(190, 172, 140));
    DrawCushion(painter);
    DrawCap(painter);
    DrawBand(painter);
    DrawOrb(painter);
    return picture;
}

QImage RingsDrawing()
{
    QImage picture = Canvas(drawingSize, Qt::white);
    SmoothPainter painter(picture);
    DrawGround(painter, QColor(252, 240, 240), QColor(214, 182, 190));
    const QPointF left(158, 150);
    const QPointF right(242, 150);
    DrawRing(painter, left);
    DrawRing(painter, right);
    // Only half of the left ring is laid over the right one, which links the two.
    painter.setClipRect(QRectF(0, 0, 400, 150));
    DrawRing(painter, left);
    return picture;
}

} // namespace lineforge::makehome
