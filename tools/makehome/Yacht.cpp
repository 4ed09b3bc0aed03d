#include "Yacht.h"

#include "Paint.h"

#include <QLinearGradient>
#include <QPainterPath>

#include <cmath>
#include <numbers>

namespace lineforge::makehome
{

namespace
{

// The scene is composed for 160 by 120 units and scaled to whatever size is wanted.
constexpr double sceneWidth = 160;
constexpr double sceneHeight = 120;
constexpr double horizon = 72;

void DrawSky(QPainter& painter)
{
    QLinearGradient sky(0, 0, 0, horizon);
    sky.setColorAt(0.0, QColor(120, 168, 214));
    sky.setColorAt(1.0, QColor(248, 232, 206));
    painter.fillRect(QRectF(0, 0, sceneWidth, horizon), sky);
    painter.setBrush(QColor(255, 246, 214));
    painter.drawEllipse(QPointF(124, 30), 9, 9);
}

void DrawHeadland(QPainter& painter)
{
    QPainterPath land;
    land.moveTo(0, horizon);
    land.lineTo(0, 56);
    land.cubicTo(18, 50, 30, 58, 44, 60);
    land.cubicTo(54, 62, 60, 68, 72, horizon);
    land.closeSubpath();
    painter.setBrush(QColor(112, 138, 104));
    painter.drawPath(land);
    painter.setBrush(QColor(236, 226, 204));
    painter.drawRect(QRectF(18, 44, 5, 12));
    painter.drawRect(QRectF(23, 50, 14, 8));
    painter.drawRect(QRectF(37, 46, 4, 13));
}

void DrawSea(QPainter& painter, double progress)
{
    QLinearGradient sea(0, horizon, 0, sceneHeight);
    sea.setColorAt(0.0, QColor(96, 146, 172));
    sea.setColorAt(1.0, QColor(24, 66, 104));
    painter.fillRect(QRectF(0, horizon, sceneWidth, sceneHeight - horizon), sea);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(214, 232, 238, 130), 0.8));
    for (int row = 0; row < 6; ++row) {
        QPainterPath wave;
        const double y = 78 + row * 7.5;
        for (int x = 0; x <= 160; x += 4) {
            const double phase = x * 0.16 + row * 1.7 + progress * 4 * std::numbers::pi;
            const QPointF point(x, y + 1.2 * std::sin(phase));
            x == 0 ? wave.moveTo(point) : wave.lineTo(point);
        }
        painter.drawPath(wave);
    }
    painter.setPen(Qt::NoPen);
}

void DrawSmoke(QPainter& painter, double progress)
{
    for (int puff = 0; puff < 6; ++puff) {
        const double age = std::fmod(puff / 6.0 + progress * 2, 1.0);
        painter.setBrush(QColor(90, 90, 96, static_cast<int>(120 * (1 - age))));
        painter.drawEllipse(QPointF(-2 - age * 34, -24 - age * 14), 2 + age * 6, 2 + age * 4.5);
    }
}

void DrawRigging(QPainter& painter)
{
    painter.setPen(QPen(QColor(70, 50, 30), 1));
    painter.drawLine(QPointF(-18, 0), QPointF(-18, -34));
    painter.drawLine(QPointF(16, 0), QPointF(16, -34));
    painter.setPen(QPen(QColor(70, 50, 30), 0.4));
    painter.drawLine(QPointF(-18, -34), QPointF(-36, -4));
    painter.drawLine(QPointF(16, -34), QPointF(40, -6));
    painter.drawLine(QPointF(-18, -34), QPointF(16, -34));
    painter.setPen(Qt::NoPen);
}

void DrawFlags(QPainter& painter, double progress)
{
    const double lift = 1.2 * std::sin(progress * 8 * std::numbers::pi);
    for (const double mast : {-18.0, 16.0}) {
        QPainterPath flag(QPointF(mast, -34));
        flag.quadTo(QPointF(mast - 5, -34 + lift), QPointF(mast - 10, -33));
        flag.lineTo(mast - 10, -28);
        flag.quadTo(QPointF(mast - 5, -29 + lift), QPointF(mast, -29));
        flag.closeSubpath();
        painter.setBrush(QColor(186, 38, 46));
        painter.drawPath(flag);
    }
}

void DrawHull(QPainter& painter)
{
    painter.setBrush(QColor(214, 170, 90));
    painter.drawRect(QRectF(-4, -22, 5, 20));
    painter.setBrush(QColor(40, 40, 44));
    painter.drawRect(QRectF(-4, -25, 5, 4));
    painter.setBrush(QColor(246, 240, 226));
    painter.drawRect(QRectF(-14, -7, 26, 5));
    QPainterPath hull(QPointF(-38, -4));
    hull.cubicTo(QPointF(-20, -1), QPointF(16, -1), QPointF(44, -6));
    hull.cubicTo(QPointF(38, 2), QPointF(34, 7), QPointF(30, 9));
    hull.lineTo(-30, 9);
    hull.cubicTo(QPointF(-35, 6), QPointF(-37, 2), QPointF(-38, -4));
    painter.setBrush(QColor(26, 32, 52));
    painter.drawPath(hull);
    painter.setBrush(QColor(214, 170, 90));
    painter.drawRect(QRectF(-36, 0.5, 72, 1));
}

void DrawPaddle(QPainter& painter, double progress)
{
    painter.setBrush(QColor(236, 226, 200));
    painter.drawPie(QRectF(-9, -6, 18, 20), 0, 180 * 16);
    painter.save();
    painter.translate(0, 5);
    painter.rotate(progress * 720);
    painter.setPen(QPen(QColor(140, 40, 36), 1));
    for (int spoke = 0; spoke < 6; ++spoke) {
        painter.rotate(30);
        painter.drawLine(QPointF(-7, 0), QPointF(7, 0));
    }
    painter.restore();
}

} // namespace

QImage YachtScene(const QSize& size, double progress)
{
    QImage picture = Canvas(size, Qt::white);
    SmoothPainter painter(picture);
    painter.scale(size.width() / sceneWidth, size.height() / sceneHeight);
    painter.setPen(Qt::NoPen);
    DrawSky(painter);
    DrawHeadland(painter);
    DrawSea(painter, progress);
    const double sway = std::sin(progress * 4 * std::numbers::pi);
    painter.translate(46 + 62 * progress, 88 + sway);
    painter.rotate(1.2 * sway);
    DrawSmoke(painter, progress);
    DrawRigging(painter);
    DrawFlags(painter, progress);
    DrawHull(painter);
    DrawPaddle(painter, progress);
    return picture;
}

} // namespace lineforge::makehome
