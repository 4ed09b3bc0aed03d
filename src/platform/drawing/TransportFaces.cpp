#include "platform/drawing/TransportFaces.h"

#include "platform/drawing/ButtonFace.h"

#include <QPainter>
#include <QPainterPath>

namespace lineforge
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

// As high as a triangle.
QPainterPath Bar(qreal left)
{
    QPainterPath path;
    path.addRect(left, side / 2.0 - 21, 7, 42);
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
    case TransportSymbol::ToStart:
        path.addPath(Bar(19));
        path.addPath(Triangle(28, false));
        path.addPath(Triangle(52, false));
        break;
    case TransportSymbol::Pause:
        path.addRect(30, 28, 13, 40);
        path.addRect(53, 28, 13, 40);
        break;
    case TransportSymbol::Step:
        path.addPath(Bar(31));
        path.addPath(Triangle(45, true));
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

} // namespace lineforge
