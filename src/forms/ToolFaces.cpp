#include "forms/ToolFaces.h"

#include "platform/drawing/ButtonFace.h"

#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QTransform>

#include <array>
#include <initializer_list>

namespace lineforge::forms
{

namespace
{
constexpr qreal centre = ButtonFaceSide / 2.0;

// The path that a pen of that width leaves.
QPainterPath Stroked(const QPainterPath& line, qreal width, Qt::PenCapStyle cap = Qt::RoundCap)
{
    QPainterPathStroker pen;
    pen.setWidth(width);
    pen.setCapStyle(cap);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen.createStroke(line);
}

QPainterPath Polyline(std::initializer_list<QPointF> points)
{
    QPainterPath path(*points.begin());
    for (const QPointF& point : points)
        path.lineTo(point);
    return path;
}

QPainterPath Polygon(std::initializer_list<QPointF> points)
{
    QPainterPath path = Polyline(points);
    path.closeSubpath();
    return path;
}

QPainterPath FourWayArrow()
{
    const QPainterPath up = Polygon({{centre, 16},
                                     {centre + 13, 31},
                                     {centre + 4.5, 31},
                                     {centre + 4.5, centre},
                                     {centre - 4.5, centre},
                                     {centre - 4.5, 31},
                                     {centre - 13, 31}});
    QPainterPath path;
    for (int quarter = 0; quarter < 4; ++quarter) {
        const QTransform turn =
            QTransform::fromTranslate(centre, centre).rotate(90 * quarter).translate(-centre, -centre);
        path = path.united(turn.map(up));
    }
    return path;
}

QPainterPath CapitalA()
{
    const QPainterPath legs = Polygon({{41, 20}, {55, 20}, {77, 76}, {65, 76}, {48, 32}, {31, 76}, {19, 76}});
    return legs.united(Polygon({{33, 54}, {63, 54}, {67, 64}, {29, 64}}));
}

QPainterPath Cross()
{
    constexpr qreal reach = 22;
    const QPainterPath falling = Polyline({{centre - reach, centre - reach}, {centre + reach, centre + reach}});
    const QPainterPath rising = Polyline({{centre - reach, centre + reach}, {centre + reach, centre - reach}});
    return Stroked(falling, 12).united(Stroked(rising, 12));
}

QPainterPath LineWithEnds()
{
    QPainterPath ends;
    ends.addEllipse(QPointF(26, 70), 9, 9);
    ends.addEllipse(QPointF(70, 26), 9, 9);
    return ends.united(Stroked(Polyline({{26, 70}, {70, 26}}), 7));
}

QPainterPath BoxOutline()
{
    QPainterPath box;
    box.addRect(20, 28, 56, 40);
    return Stroked(box, 8);
}

// A letter with the cursor behind it.
QPainterPath TextWithCaret()
{
    const QPainterPath letter =
        Polygon({{18, 24}, {58, 24}, {58, 35}, {44, 35}, {44, 74}, {32, 74}, {32, 35}, {18, 35}});
    const QPainterPath caret = Stroked(Polyline({{71, 22}, {71, 74}}), 5, Qt::FlatCap)
                                   .united(Stroked(Polyline({{63, 22}, {79, 22}}), 5, Qt::FlatCap))
                                   .united(Stroked(Polyline({{63, 74}, {79, 74}}), 5, Qt::FlatCap));
    return letter.united(caret);
}

// A door frame that an arrow leaves to the right.
QPainterPath DoorWithArrow()
{
    const QPainterPath door =
        Stroked(Polyline({{52, 34}, {52, 20}, {22, 20}, {22, 76}, {52, 76}, {52, 62}}), 8, Qt::FlatCap);
    const QPainterPath arrow = Polygon({{36, 43}, {60, 43}, {60, 31}, {80, 48}, {60, 65}, {60, 53}, {36, 53}});
    return door.united(arrow);
}

void PaintPalette(QPainter& painter, const QColor& ink)
{
    QPainterPath board;
    board.addEllipse(QRectF(15, 20, 66, 56));
    QPainterPath thumb;
    thumb.addEllipse(QPointF(59, 62), 8, 7);
    painter.fillPath(board.subtracted(thumb), ink);

    struct Dab {
        QPointF Place;
        QColor Paint;
    };
    const std::array<Dab, 4> dabs{{{{29, 51}, QColor(0xe0, 0x3c, 0x31)},
                                   {{38, 34}, QColor(0xf5, 0xb8, 0x1c)},
                                   {{57, 33}, QColor(0x3a, 0xa8, 0x4c)},
                                   {{69, 47}, QColor(0x2f, 0x7d, 0xe1)}}};
    painter.setPen(Qt::NoPen);
    for (const Dab& dab : dabs) {
        painter.setBrush(dab.Paint);
        painter.drawEllipse(dab.Place, 8, 8);
    }
}

QPainterPath PathOf(ToolSymbol symbol)
{
    switch (symbol) {
    case ToolSymbol::Move:
        return FourWayArrow();
    case ToolSymbol::Font:
        return CapitalA();
    case ToolSymbol::Delete:
        return Cross();
    case ToolSymbol::Line:
        return LineWithEnds();
    case ToolSymbol::Box:
        return BoxOutline();
    case ToolSymbol::Text:
        return TextWithCaret();
    case ToolSymbol::Exit:
        return DoorWithArrow();
    case ToolSymbol::Colour: // has paints of its own
        break;
    }
    return {};
}
} // namespace

QImage DrawToolFace(ToolSymbol symbol, bool sunken)
{
    return DrawButtonFace(sunken, [symbol](QPainter& painter, const QColor& ink) {
        if (symbol == ToolSymbol::Colour)
            PaintPalette(painter, ink);
        else
            painter.fillPath(PathOf(symbol), ink);
    });
}

} // namespace lineforge::forms
