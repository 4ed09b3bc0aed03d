#include "Drawings.h"
#include "Paint.h"

#include <QLinearGradient>
#include <QPainterPath>

namespace lineforge::makehome
{

namespace
{

const QColor stone(44, 40, 66);
const QColor lamplight(255, 214, 120);

void DrawEvening(QPainter& painter)
{
    QLinearGradient sky(0, 0, 0, 230);
    sky.setColorAt(0.0, QColor(62, 74, 128));
    sky.setColorAt(0.55, QColor(214, 130, 124));
    sky.setColorAt(1.0, QColor(252, 212, 146));
    painter.fillRect(QRectF(0, 0, 400, 300), sky);
    painter.setBrush(QColor(255, 238, 190));
    painter.drawEllipse(QPointF(318, 172), 24, 24);
    painter.setBrush(QColor(255, 240, 226, 70));
    for (const QRectF& cloud : {QRectF(30, 60, 130, 10), QRectF(70, 72, 90, 7), QRectF(250, 96, 120, 9)}) {
        painter.drawRoundedRect(cloud, cloud.height() / 2, cloud.height() / 2);
    }
}

void DrawBattlements(QPainter& painter, const QRectF& wall, int merlons)
{
    const qreal step = wall.width() / (2 * merlons - 1);
    for (int merlon = 0; merlon < merlons; ++merlon) {
        painter.drawRect(QRectF(wall.left() + 2 * merlon * step, wall.top() - 9, step, 10));
    }
}

void DrawTower(QPainter& painter, const QRectF& tower, int merlons)
{
    painter.setBrush(stone);
    painter.drawRect(tower);
    const QRectF cap(tower.left() - 4, tower.top(), tower.width() + 8, 9);
    painter.drawRect(cap);
    DrawBattlements(painter, cap, merlons);
}

void DrawWindow(QPainter& painter, const QPointF& foot)
{
    QPainterPath window;
    window.moveTo(foot + QPointF(-4, 0));
    window.lineTo(foot + QPointF(-4, -11));
    window.quadTo(foot + QPointF(0, -18), foot + QPointF(4, -11));
    window.lineTo(foot + QPointF(4, 0));
    window.closeSubpath();
    painter.setBrush(lamplight);
    painter.drawPath(window);
}

void DrawFlag(QPainter& painter)
{
    painter.setPen(QPen(stone, 2));
    painter.drawLine(QPointF(176, 84), QPointF(176, 36));
    painter.setPen(Qt::NoPen);
    QPainterPath flag(QPointF(177, 37));
    flag.cubicTo(QPointF(188, 32), QPointF(196, 44), QPointF(210, 38));
    flag.lineTo(210, 54);
    flag.cubicTo(QPointF(196, 60), QPointF(188, 48), QPointF(177, 53));
    flag.closeSubpath();
    painter.setBrush(QColor(186, 44, 56));
    painter.drawPath(flag);
}

void DrawHill(QPainter& painter)
{
    QPainterPath hill(QPointF(0, 300));
    hill.lineTo(0, 262);
    hill.cubicTo(QPointF(70, 226), QPointF(120, 222), QPointF(200, 222));
    hill.cubicTo(QPointF(280, 222), QPointF(340, 234), QPointF(400, 266));
    hill.lineTo(400, 300);
    hill.closeSubpath();
    painter.setBrush(QColor(30, 34, 48));
    painter.drawPath(hill);
    painter.setBrush(QColor(24, 28, 40));
    for (const QPointF& tree : {QPointF(28, 252), QPointF(52, 246), QPointF(352, 248), QPointF(378, 258)}) {
        painter.drawEllipse(tree, 15, 19);
    }
}

} // namespace

QImage CastleDrawing()
{
    QImage picture = Canvas(drawingSize, Qt::white);
    SmoothPainter painter(picture);
    painter.setPen(Qt::NoPen);
    DrawEvening(painter);
    DrawFlag(painter);
    painter.setBrush(stone);
    painter.drawRect(QRectF(80, 176, 240, 60));
    DrawBattlements(painter, QRectF(80, 176, 240, 60), 13);
    DrawTower(painter, QRectF(142, 92, 68, 140), 5);
    DrawTower(painter, QRectF(66, 146, 34, 90), 3);
    DrawTower(painter, QRectF(236, 130, 42, 104), 3);
    DrawTower(painter, QRectF(302, 152, 32, 84), 3);
    for (const QPointF& foot :
         {QPointF(160, 130), QPointF(192, 130), QPointF(176, 164), QPointF(83, 184), QPointF(257, 168),
          QPointF(257, 200), QPointF(318, 188), QPointF(120, 210), QPointF(222, 212)}) {
        DrawWindow(painter, foot);
    }
    DrawHill(painter);
    return picture;
}

} // namespace lineforge::makehome
