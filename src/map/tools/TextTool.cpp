#include "map/tools/TextTool.h"

#include "forms/Form1.h"
#include "map/items/HitBox.h"
#include "map/items/MapItems.h"

#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int abovePress = 50;
constexpr Size hitArea{600, 100}; // whatever the real size of the text is

// With the count at 0 the hit before stands, maybe on a text that is gone or at no place.
bool IsHitStanding(const MapState& map, const ToolState& tools)
{
    const auto& text = map.TextArr[tools.TextIdx];
    return HasPosition(text[TextColumn::X], text[TextColumn::Y]);
}

bool IsPressInText(const MapState& map, const MapMouseState& mouse, int row)
{
    const auto& text = map.TextArr[row];
    return IsPressInside(mouse, text[TextColumn::X], text[TextColumn::Y], hitArea);
}

void KeepPenAndFont(ToolState& tools, const PictureBox& picture)
{
    tools.PenSave = picture.ForeColor;
    tools.FontSave = picture.Font;
}

void GiveBackPenAndFont(const ToolState& tools, PictureBox& picture)
{
    picture.ForeColor = tools.PenSave;
    picture.Font = tools.FontSave;
}

// Drawn a second time in the exclusive-or pen it is gone.
void DrawRubberRectangle(const MapState& map, int row, PictureBox& picture)
{
    const auto& cells = map.TextArr[row];
    const QString text = cells[TextColumn::Text].Text();
    const TextFont font = std::exchange(picture.Font, FontOfText(map, row));
    picture.ForeColor = QbColor(8);
    picture.Box({cells[TextColumn::X].Number(), cells[TextColumn::Y].Number(), picture.TextWidth(text),
                 picture.TextHeight(text)});
    picture.Font = font;
}

void StoreText(MapState& map, int row, Point place, const QString& text, const PictureBox& picture)
{
    auto& cells = map.TextArr[row];
    cells[TextColumn::X] = place.X;
    cells[TextColumn::Y] = place.Y;
    // KEPT(NewTextTest.CommaInIt_ShiftsWhatStandsBehindIt): a comma in it shifts all values behind it when the map is
    // read again.
    // Mended, it would be stored otherwise than it was typed.
    cells[TextColumn::Text] = text;
    cells[TextColumn::FontName] = picture.Font.Name;
    cells[TextColumn::FontSize] = QString::number(picture.Font.Size);
    cells[TextColumn::Colour] = static_cast<int>(picture.ForeColor);
}
} // namespace

void HitText(const MapState& map, const MapMouseState& mouse, ToolState& tools)
{
    if (map.STexts == 0)
        return;
    int row = 0;
    while (row <= map.STexts && !IsPressInText(map, mouse, row))
        ++row;
    tools.TextMiss = row > map.STexts ? 1 : 0;
    tools.TextIdx = row;
}

Pressed PlaceText(const ToolWork& work, const Pointing& pointing)
{
    PictureBox& picture = work.Form1->Picture1;
    const int row = TakeRow(work.Map.TextArr, work.Map.STexts, LastMapRow);
    work.Scratch.sInput = work.Prompts.InputBox(u"New Text Input"_s, u"Enter the Text for display on the Tree Map"_s);
    const Point place{pointing.At.X, pointing.At.Y - abovePress};
    KeepPenAndFont(work.Tools, picture);
    picture.ForeColor = work.Form1->CommonDialog1.Color;
    PrintOnMap(picture, place, work.Scratch.sInput);
    StoreText(work.Map, row, place, work.Scratch.sInput, picture);
    GiveBackPenAndFont(work.Tools, picture);
    // The text stands already: no gesture begins.
    return Pressed::No;
}

Pressed TakeText(const ToolWork& work, const Pointing& pointing)
{
    HitText(work.Map, work.Mouse, work.Tools);
    if (work.Tools.TextMiss == 0 && !IsHitStanding(work.Map, work.Tools))
        work.Tools.TextMiss = 1;
    if (work.Tools.TextMiss != 0)
        return Pressed::No;
    work.Scratch.sInput = work.Map.TextArr[work.Tools.TextIdx][TextColumn::Text].Text();
    KeepLast(work.Tools, pointing.At);
    KeepPenAndFont(work.Tools, work.Form1->Picture1);
    return Pressed::Yes;
}

void DragText(const ToolWork& work, const Pointing& pointing)
{
    KeepPointer(work, pointing);
    if (work.Tools.TextMiss != 0)
        return;
    PictureBox& picture = work.Form1->Picture1;
    TakeDelta(work.Tools, pointing.At);
    if (picture.Mode == DrawMode::Xor)
        DrawRubberRectangle(work.Map, work.Tools.TextIdx, picture);
    else
        DrawTextIn(work, MapOnScreen(work.Map, *work.Form1), work.Tools.TextIdx, picture.BackColor);
    CarryText(work.Map, work.Tools, work.Tools.TextIdx);
    picture.Mode = DrawMode::Xor;
    DrawRubberRectangle(work.Map, work.Tools.TextIdx, picture);
    KeepLast(work.Tools, pointing.At);
}

Released DropText(const ToolWork& work)
{
    if (work.Tools.TextMiss != 0)
        return Released::Repaint;
    PictureBox& picture = work.Form1->Picture1;
    if (picture.Mode == DrawMode::Xor)
        DrawRubberRectangle(work.Map, work.Tools.TextIdx, picture);
    picture.Mode = DrawMode::Copy;
    DrawText(work, MapOnScreen(work.Map, *work.Form1), work.Tools.TextIdx);
    work.Scratch.sInput.clear();
    GiveBackPenAndFont(work.Tools, picture);
    return Released::Repaint;
}

Released DeleteText(const ToolWork& work)
{
    if (work.Tools.TextMiss != 0)
        return Released::Repaint;
    DrawTextIn(work, MapOnScreen(work.Map, *work.Form1), work.Tools.TextIdx, work.Form1->Picture1.BackColor);
    GiveBackPenAndFont(work.Tools, work.Form1->Picture1);
    auto& cells = work.Map.TextArr[work.Tools.TextIdx];
    for (int column = 0; column < TextColumn::Count; ++column)
        cells[column] = 0;
    // KEPT(TextToolTest.DeleteFirstOfThree_SavedWithYes_OnlyTheSecondIsInTheFile): the slot stays, and at the save the
    // highest text is left out for it.
    // Mended, no text would be lost by the deletion of another.
    work.Map.STexts -= 1;
    return Released::Repaint;
}

} // namespace lineforge
