#include "forms/TransportFaces.h"

#include "forms/ButtonFace.h"

#include <QPainter>
#include <QPainterPath>

namespace lineforge::forms
{

namespace
{
constexpr int side = ButtonFaceSide;

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
    return DrawButtonFace(pressed,
                          [symbol](QPainter& painter, const QColor& ink) { painter.fillPath(PathOf(symbol), ink); });
}

} // namespace lineforge::forms
