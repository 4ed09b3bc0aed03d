#include "map/MapItems.h"

#include "platform/Text.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int paperOffset = 1200; // twips to the right
constexpr int paperPen = 2;

// 1.8 times, without a detour over fractions.
constexpr int Stretched(int twips)
{
    return twips * 9 / 5;
}

bool OnPaper(const Program& p)
{
    return p.Output.PrintToPrinter == 1;
}

Colour ColourOf(const Cell& cell)
{
    return static_cast<Colour>(cell.Number());
}

void Pick(Surface& surface, const QString& name, double size)
{
    surface.Font.Name = name;
    surface.Font.Size = size;
}

template <class Draw>
void DrawWithPen(Program& p, Colour colour, Draw&& draw)
{
    Surface& surface = MapSurface(p);
    if (OnPaper(p))
        surface.DrawWidth = paperPen;
    const Colour pen = std::exchange(surface.ForeColor, colour);
    draw(surface);
    surface.ForeColor = pen;
}

// On paper an Arial text comes out in the printer's own small Courier.
void PickTextFont(Program& p, Surface& surface, const QString& name, double size)
{
    if (OnPaper(p) && SameText(name, u"Arial")) {
        Pick(surface, u"Courier"_s, 7);
        surface.Font.Bold = false;
    } else {
        Pick(surface, name, size);
    }
}

// After a text that isn't Arial the picture goes back to its font, on paper to Courier.
void DropTextFont(Program& p)
{
    TextFont& font = p.Form1->Picture1.Font;
    if (SameText(font.Name, u"Arial"))
        return;
    if (OnPaper(p)) {
        font.Name = u"Courier"_s;
        font.Size = 7;
    } else {
        ResetMapFont(p.Form1->Picture1);
    }
}
} // namespace

Surface& MapSurface(Program& p)
{
    if (!OnPaper(p))
        return p.Form1->Picture1;
    Q_ASSERT(p.Output.Page);
    return *p.Output.Page;
}

Point OnMapSurface(const Program& p, Point place, int below)
{
    if (!OnPaper(p))
        return {place.X, place.Y};
    return {place.X + paperOffset, Stretched(place.Y) + below};
}

void ResetMapFont(Surface& surface)
{
    Pick(surface, u"Arial"_s, 8);
    surface.Font.Bold = false;
}

void DrawBox(Program& p, int row)
{
    const auto& box = p.Map.BoxArr[row];
    if (box[BoxColumn::X].IsZero())
        return;
    const Point corner = OnMapSurface(p, {box[BoxColumn::X].Number(), box[BoxColumn::Y].Number()});
    const int height = OnPaper(p) ? Stretched(BoxHeight) : BoxHeight;
    DrawWithPen(p, ColourOf(box[BoxColumn::Colour]), [&](Surface& surface) {
        surface.Box({corner.X, corner.Y, BoxWidth, height});
    });
}

void DrawLine(Program& p, int row)
{
    const auto& line = p.Map.LineArr[row];
    if (line[LineColumn::X1] == 0)
        return;
    const Point start = OnMapSurface(p, {line[LineColumn::X1], line[LineColumn::Y1]});
    const Point end = OnMapSurface(p, {line[LineColumn::X2], line[LineColumn::Y2]});
    DrawWithPen(p, static_cast<Colour>(line[LineColumn::Colour]), [&](Surface& surface) { surface.Line(start, end); });
}

void DrawText(Program& p, int row)
{
    const auto& text = p.Map.TextArr[row];
    if (text[TextColumn::X].IsZero())
        return;
    Surface& surface = MapSurface(p);
    const Point place = OnMapSurface(p, {text[TextColumn::X].Number(), text[TextColumn::Y].Number()});
    PickTextFont(p, surface, text[TextColumn::FontName].Text(), text[TextColumn::FontSize].Fraction());
    surface.ForeColor = ColourOf(text[TextColumn::Colour]);
    surface.PrintAt(place, text[TextColumn::Text].Text());
    DropTextFont(p);
}

} // namespace lineforge
