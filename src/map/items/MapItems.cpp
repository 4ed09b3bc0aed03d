#include "map/items/MapItems.h"

#include "forms/Form1.h"
#include "platform/base/Text.h"

#include <optional>
#include <utility>

namespace lineforge
{

namespace
{
// A spoilt file may tell a text of any length. More characters than this can't be seen anyway, and would keep the user
// waiting.
constexpr qsizetype longestText = 4096;

Colour ColourOf(const Cell& cell)
{
    return static_cast<Colour>(cell.Number());
}

template <class Draw>
void DrawWithPen(const MapSheet& sheet, Colour colour, Draw&& draw)
{
    if (sheet.Pen)
        sheet.On.DrawWidth = *sheet.Pen;
    const Colour pen = std::exchange(sheet.On.ForeColor, colour);
    draw(sheet.On);
    sheet.On.ForeColor = pen;
}

void PickTextFont(const MapPicture& shown, const MapSheet& sheet, int row)
{
    const auto& text = shown.Map.TextArr[row];
    const QString name = text[TextColumn::FontName].Text();
    if (sheet.InsteadOfArial && SameText(name, u"Arial")) {
        sheet.On.Font = *sheet.InsteadOfArial;
        return;
    }
    sheet.On.Font.Name = name;
    shown.Errors.Ignoring([&] { sheet.On.Font.Size = text[TextColumn::FontSize].Fraction(); });
}

void DropTextFont(const MapPicture& shown, const MapSheet& sheet)
{
    TextFont& font = shown.Form1->Picture1.Font;
    if (!SameText(font.Name, u"Arial"))
        font = sheet.PictureFont;
}

// A size or colour that is spoilt leaves what is in force.
void DrawTextWith(const MapPicture& shown, const MapSheet& sheet, int row, std::optional<Colour> pen)
{
    const auto& text = shown.Map.TextArr[row];
    const Point place = sheet.At({text[TextColumn::X].Number(), text[TextColumn::Y].Number()});
    PickTextFont(shown, sheet, row);
    shown.Errors.Ignoring([&] { sheet.On.ForeColor = pen ? *pen : ColourOf(text[TextColumn::Colour]); });
    PrintOnMap(sheet.On, place, text[TextColumn::Text].Text());
    DropTextFont(shown, sheet);
}
} // namespace

void PrintOnMap(Surface& surface, Point place, const QString& text)
{
    surface.PrintAt(place, text.left(longestText));
}

void ResetMapFont(Surface& surface)
{
    surface.Font = {};
}

void ClearMapPicture(MapState& map, forms::Form1& form)
{
    form.Picture1.Cls();
    map.Captions.clear();
}

void DrawBox(const MapState& map, const MapSheet& sheet, int row)
{
    const auto& box = map.BoxArr[row];
    if (!IsFreeRow(box))
        DrawBoxIn(map, sheet, row, ColourOf(box[BoxColumn::Colour]));
}

void DrawBoxIn(const MapState& map, const MapSheet& sheet, int row, Colour pen)
{
    const auto& box = map.BoxArr[row];
    const Point corner = sheet.At({box[BoxColumn::X].Number(), box[BoxColumn::Y].Number()});
    const Rectangle outline{corner.X, corner.Y, BoxWidth, sheet.Down(BoxHeight)};
    DrawWithPen(sheet, pen, [&](Surface& surface) { surface.Box(outline); });
}

void DrawLine(const MapState& map, const MapSheet& sheet, int row)
{
    const auto& line = map.LineArr[row];
    if (!IsFreeRow(line))
        DrawLineIn(map, sheet, row, static_cast<Colour>(line[LineColumn::Colour]));
}

void DrawLineIn(const MapState& map, const MapSheet& sheet, int row, Colour pen)
{
    const auto& line = map.LineArr[row];
    const Point start = sheet.At({line[LineColumn::X1], line[LineColumn::Y1]});
    const Point end = sheet.At({line[LineColumn::X2], line[LineColumn::Y2]});
    DrawWithPen(sheet, pen, [&](Surface& surface) { surface.Line(start, end); });
}

void DrawText(const MapPicture& shown, const MapSheet& sheet, int row)
{
    if (!IsFreeRow(shown.Map.TextArr[row]))
        DrawTextWith(shown, sheet, row, {});
}

void DrawTextIn(const MapPicture& shown, const MapSheet& sheet, int row, Colour pen)
{
    DrawTextWith(shown, sheet, row, pen);
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
