#include "forms/TransportFaces.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace lineforge::forms
{

namespace
{
constexpr int side = 96;

QPainterPath Triangle(qreal left, bool pointsRight)
{
    constexpr qreal width = 24;
    constexpr qreal half = 21;
    const qreal base = pointsRight ? left : left + width;
    const qreal tip = pointsRight ? left + width : left;
    QPainterPath path(QPointF(base, side / 2.0 - half));
    path.lineTo(tip, side / 2.0);
    path.lineTo(base, side / 2.0 + half);
    path.closeSubpath();
    return path;
}

QPainterPath PathOf(TransportSymbol symbol)
{
    QPainterPath path;
    switch (symbol) {
    case TransportSymbol::FastForward:
        path.addPath(Triangle(24, true));
        path.addPath(Triangle(48, true));
        break;
    case TransportSymbol::Forward:
        path.addPath(Triangle(38, true));
        break;
    case TransportSymbol::Stop:
        path.addRect(30, 30, 36, 36);
        break;
    case TransportSymbol::Back:
        path.addPath(Triangle(34, false));
        break;
    case TransportSymbol::FastBack:
        path.addPath(Triangle(24, false));
        path.addPath(Triangle(48, false));
        break;
    }
    return path;
}
} // namespace

QImage DrawTransportFace(TransportSymbol symbol, bool pressed)
{
    QImage face(side, side, QImage::Format_ARGB32_Premultiplied);
    face.fill(Qt::transparent);
    QPainter painter(&face);
    painter.setRenderHint(QPainter::Antialiasing);

    QLinearGradient light(0, 0, 0, side);
    light.setColorAt(0, pressed ? QColor(0x4a, 0x6c, 0x8c) : QColor(0xff, 0xff, 0xff));
    light.setColorAt(1, pressed ? QColor(0x6f, 0x95, 0xb8) : QColor(0xd2, 0xd8, 0xde));
    painter.setPen(QPen(QColor(0x5a, 0x6a, 0x78), 3));
    painter.setBrush(light);
    painter.drawRoundedRect(QRectF(4, 4, side - 8, side - 8), 12, 12);

    // A pressed symbol goes down with its button.
    if (pressed)
        painter.translate(2, 2);
    painter.fillPath(PathOf(symbol), pressed ? QColor(Qt::white) : QColor(0x2b, 0x3a, 0x48));
    return face;
}

} // namespace lineforge::forms
