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
bool IsHitStanding(const Program& p)
{
    const auto& text = p.Map.TextArr[p.Tools.TextIdx];
    return HasPosition(text[TextColumn::X], text[TextColumn::Y]);
}

bool IsPressInText(const Program& p, int row)
{
    const auto& text = p.Map.TextArr[row];
    return IsPressInside(p, text[TextColumn::X], text[TextColumn::Y], hitArea);
}

void KeepPenAndFont(Program& p)
{
    p.Tools.PenSave = p.Form1->Picture1.ForeColor;
    p.Tools.FontSave = p.Form1->Picture1.Font;
}

void GiveBackPenAndFont(Program& p)
{
    p.Form1->Picture1.ForeColor = p.Tools.PenSave;
    p.Form1->Picture1.Font = p.Tools.FontSave;
}

// Drawn a second time in the exclusive-or pen it is gone.
void DrawRubberRectangle(Program& p)
{
    PictureBox& picture = p.Form1->Picture1;
    const auto& cells = p.Map.TextArr[p.Tools.TextIdx];
    const QString text = cells[TextColumn::Text].Text();
    const TextFont font = std::exchange(picture.Font, FontOfText(p.Map, p.Tools.TextIdx));
    picture.ForeColor = QbColor(8);
    picture.Box({cells[TextColumn::X].Number(), cells[TextColumn::Y].Number(), picture.TextWidth(text),
                 picture.TextHeight(text)});
    picture.Font = font;
}

void StoreText(Program& p, int row, Point place)
{
    const PictureBox& picture = p.Form1->Picture1;
    auto& cells = p.Map.TextArr[row];
    cells[TextColumn::X] = place.X;
    cells[TextColumn::Y] = place.Y;
    // KEPT(NewTextTest.CommaInIt_ShiftsWhatStandsBehindIt): a comma in it shifts all values behind it when the map is
    // read again.
    // Mended, it would be stored otherwise than it was typed.
    cells[TextColumn::Text] = p.Scratch.sInput;
    cells[TextColumn::FontName] = picture.Font.Name;
    cells[TextColumn::FontSize] = QString::number(picture.Font.Size);
    cells[TextColumn::Colour] = static_cast<int>(picture.ForeColor);
}
} // namespace

void HitText(Program& p)
{
    if (p.Map.STexts == 0)
        return;
    int row = 0;
    while (row <= p.Map.STexts && !IsPressInText(p, row))
        ++row;
    p.Tools.TextMiss = row > p.Map.STexts ? 1 : 0;
    p.Tools.TextIdx = row;
}

Pressed PlaceText(Program& p, const Pointing& pointing)
{
    PictureBox& picture = p.Form1->Picture1;
    const int row = TakeRow(p.Map.TextArr, p.Map.STexts, LastMapRow);
    p.Scratch.sInput = p.Prompts.InputBox(u"New Text Input"_s, u"Enter the Text for display on the Tree Map"_s);
    const Point place{pointing.At.X, pointing.At.Y - abovePress};
    KeepPenAndFont(p);
    picture.ForeColor = p.Form1->CommonDialog1.Color;
    PrintOnMap(picture, place, p.Scratch.sInput);
    StoreText(p, row, place);
    GiveBackPenAndFont(p);
    // The text stands already: no gesture begins.
    return Pressed::No;
}

Pressed TakeText(Program& p, const Pointing& pointing)
{
    HitText(p);
    if (p.Tools.TextMiss == 0 && !IsHitStanding(p))
        p.Tools.TextMiss = 1;
    if (p.Tools.TextMiss != 0)
        return Pressed::No;
    p.Scratch.sInput = p.Map.TextArr[p.Tools.TextIdx][TextColumn::Text].Text();
    KeepLast(p, pointing.At);
    KeepPenAndFont(p);
    return Pressed::Yes;
}

void DragText(Program& p, const Pointing& pointing)
{
    KeepPointer(p, pointing);
    if (p.Tools.TextMiss != 0)
        return;
    PictureBox& picture = p.Form1->Picture1;
    TakeDelta(p, pointing.At);
    if (picture.Mode == DrawMode::Xor)
        DrawRubberRectangle(p);
    else
        DrawTextIn(p, MapOnScreen(p), p.Tools.TextIdx, picture.BackColor);
    CarryText(p, p.Tools.TextIdx);
    picture.Mode = DrawMode::Xor;
    DrawRubberRectangle(p);
    KeepLast(p, pointing.At);
}

Released DropText(Program& p)
{
    if (p.Tools.TextMiss != 0)
        return Released::Repaint;
    PictureBox& picture = p.Form1->Picture1;
    if (picture.Mode == DrawMode::Xor)
        DrawRubberRectangle(p);
    picture.Mode = DrawMode::Copy;
    DrawText(p, MapOnScreen(p), p.Tools.TextIdx);
    p.Scratch.sInput.clear();
    GiveBackPenAndFont(p);
    return Released::Repaint;
}

Released DeleteText(Program& p)
{
    if (p.Tools.TextMiss != 0)
        return Released::Repaint;
    DrawTextIn(p, MapOnScreen(p), p.Tools.TextIdx, p.Form1->Picture1.BackColor);
    GiveBackPenAndFont(p);
    auto& cells = p.Map.TextArr[p.Tools.TextIdx];
    for (int column = 0; column < TextColumn::Count; ++column)
        cells[column] = 0;
    // KEPT(TextToolTest.DeleteFirstOfThree_SavedWithYes_OnlyTheSecondIsInTheFile): the slot stays, and at the save the
    // highest text is left out for it.
    // Mended, no text would be lost by the deletion of another.
    p.Map.STexts -= 1;
    return Released::Repaint;
}

} // namespace lineforge
