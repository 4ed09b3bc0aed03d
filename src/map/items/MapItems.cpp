#include "map/items/MapItems.h"

#include "forms/Form1.h"
#include "platform/base/Text.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int paperOffset = 1200; // twips to the right
constexpr int paperPen = 2;

// A spoilt file may tell any place and a text of any length. What lies this far out, in twips, can't be seen anyway,
// nor can more characters than this, and neither overflows nor keeps the user waiting.
constexpr int farOutside = 100'000'000;
constexpr qsizetype longestText = 4096;

int Within(int twips)
{
    return std::clamp(twips, -farOutside, farOutside);
}

// 1.8 times, without a detour over fractions.
constexpr int Stretched(int twips)
{
    return twips * 9 / 5;
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
void PickTextFont(Program& p, Surface& surface, int row)
{
    const auto& text = p.Map.TextArr[row];
    const QString name = text[TextColumn::FontName].Text();
    if (OnPaper(p) && SameText(name, u"Arial")) {
        Pick(surface, u"Courier"_s, 7);
        surface.Font.Bold = false;
        return;
    }
    surface.Font.Name = name;
    p.Errors.Ignoring([&] { surface.Font.Size = text[TextColumn::FontSize].Fraction(); });
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

// A size or colour that is spoilt leaves what is in force.
void DrawTextWith(Program& p, int row, std::optional<Colour> pen)
{
    const auto& text = p.Map.TextArr[row];
    Surface& surface = MapSurface(p);
    const Point place = OnMapSurface(p, {text[TextColumn::X].Number(), text[TextColumn::Y].Number()});
    PickTextFont(p, surface, row);
    p.Errors.Ignoring([&] { surface.ForeColor = pen ? *pen : ColourOf(text[TextColumn::Colour]); });
    PrintOnMap(surface, place, text[TextColumn::Text].Text());
    DropTextFont(p);
}
} // namespace

bool OnPaper(const Program& p)
{
    return p.Output.PrintToPrinter == 1;
}

Surface& MapSurface(Program& p)
{
    if (!OnPaper(p))
        return p.Form1->Picture1;
    Q_ASSERT(p.Output.Page);
    return *p.Output.Page;
}

Point OnMapSurface(const Program& p, Point place, int below)
{
    const Point seen{Within(place.X), Within(place.Y)};
    if (!OnPaper(p))
        return seen;
    return {seen.X + paperOffset, Stretched(seen.Y) + below};
}

void PrintOnMap(Surface& surface, Point place, const QString& text)
{
    surface.PrintAt(place, text.left(longestText));
}

void ResetMapFont(Surface& surface)
{
    Pick(surface, u"Arial"_s, 8);
    surface.Font.Bold = false;
}

void ClearMapPicture(Program& p)
{
    p.Form1->Picture1.Cls();
    p.Map.Captions.clear();
}

void DrawBox(Program& p, int row)
{
    const auto& box = p.Map.BoxArr[row];
    if (!box[BoxColumn::X].IsZero())
        DrawBoxIn(p, row, ColourOf(box[BoxColumn::Colour]));
}

void DrawBoxIn(Program& p, int row, Colour pen)
{
    const auto& box = p.Map.BoxArr[row];
    const Point corner = OnMapSurface(p, {box[BoxColumn::X].Number(), box[BoxColumn::Y].Number()});
    const int height = OnPaper(p) ? Stretched(BoxHeight) : BoxHeight;
    DrawWithPen(p, pen, [&](Surface& surface) { surface.Box({corner.X, corner.Y, BoxWidth, height}); });
}

void DrawLine(Program& p, int row)
{
    const auto& line = p.Map.LineArr[row];
    if (line[LineColumn::X1] != 0)
        DrawLineIn(p, row, static_cast<Colour>(line[LineColumn::Colour]));
}

void DrawLineIn(Program& p, int row, Colour pen)
{
    const auto& line = p.Map.LineArr[row];
    const Point start = OnMapSurface(p, {line[LineColumn::X1], line[LineColumn::Y1]});
    const Point end = OnMapSurface(p, {line[LineColumn::X2], line[LineColumn::Y2]});
    DrawWithPen(p, pen, [&](Surface& surface) { surface.Line(start, end); });
}

void DrawText(Program& p, int row)
{
    if (!p.Map.TextArr[row][TextColumn::X].IsZero())
        DrawTextWith(p, row, {});
}

void DrawTextIn(Program& p, int row, Colour pen)
{
    DrawTextWith(p, row, pen);
}

Colour ColourOfBox(const MapState& map, int row)
{
    return static_cast<Colour>(map.BoxArr[row][BoxColumn::Colour].NumberOr(0));
}

TextFont FontOfText(const MapState& map, int row)
{
    const auto& text = map.TextArr[row];
    TextFont font;
    font.Name = text[TextColumn::FontName].Text();
    if (text[TextColumn::FontSize].IsNumber())
        font.Size = text[TextColumn::FontSize].Fraction();
    return font;
}

} // namespace lineforge
