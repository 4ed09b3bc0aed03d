#include "map/tools/ZoneTool.h"

#include "forms/Form1.h"
#include "map/items/BoxCaptions.h"
#include "map/items/HitBox.h"
#include "map/items/MapDisplay.h"
#include "map/items/MapItems.h"
#include "map/tools/ToolImages.h"
#include "map/tools/ToolSelection.h"

#include <cstdlib>

namespace lineforge
{

namespace
{
bool IsInZone(const Program& p, const Cell& x, const Cell& y)
{
    return HasPosition(x, y) && x.Number() > p.Tools.ZoneLeft && x.Number() < p.Tools.ZoneLeft + p.Tools.ZoneWidth &&
           y.Number() > p.Tools.ZoneTop && y.Number() < p.Tools.ZoneTop + p.Tools.ZoneHeight;
}

void TakeWhatLiesInside(Program& p)
{
    for (int row = 0; row <= p.Tools.ZoneTexts.Last(); ++row) {
        const auto& text = p.Map.TextArr[row];
        const auto& box = p.Map.BoxArr[row];
        const auto& line = p.Map.LineArr[row];
        p.Tools.ZoneTexts[row] = IsInZone(p, text[TextColumn::X], text[TextColumn::Y]);
        p.Tools.ZoneBoxes[row] = IsInZone(p, box[BoxColumn::X], box[BoxColumn::Y]);
        p.Tools.ZoneLines[row] = IsInZone(p, line[LineColumn::X1], line[LineColumn::Y1]);
    }
}

// On its way a box shows the name in its row. What stands in it at first may be another.
void WipeCaptionsInside(Program& p)
{
    for (int row = 0; row <= p.Tools.ZoneBoxes.Last(); ++row)
        if (p.Tools.ZoneBoxes[row])
            WipeCaption(p, row);
}

void PrintBoxTexts(Program& p, int row, Colour pen)
{
    PictureBox& picture = p.Form1->Picture1;
    const auto& box = p.Map.BoxArr[row];
    const int x = box[BoxColumn::X].Number();
    const int y = box[BoxColumn::Y].Number();
    ResetMapFont(picture);
    picture.ForeColor = pen;
    // KEPT(ZoneDragTest.TravellingBox_ShowsItsNumberAndName_AnEmptyOneAZero): an empty box shows its "0" while it
    // travels.
    // Mended, it would travel empty.
    PrintOnMap(picture, {x + NumberInBox.X, y + NumberInBox.Y}, box[BoxColumn::File].Text());
    PrintOnMap(picture, {x + ForenameInBox.X, y + ForenameInBox.Y}, FittedForename(box[BoxColumn::Forename].Text()));
}

void CarryTextAlong(Program& p, int row)
{
    DrawTextIn(p, MapOnScreen(p), row, p.Form1->Picture1.BackColor);
    CarryText(p, row);
    DrawText(p, MapOnScreen(p), row);
}

void CarryBoxAlong(Program& p, int row)
{
    const Colour paper = p.Form1->Picture1.BackColor;
    DrawBoxIn(p.Map, MapOnScreen(p), row, paper);
    PrintBoxTexts(p, row, paper);
    CarryBox(p, row);
    DrawBoxIn(p.Map, MapOnScreen(p), row, ColourOfBox(p.Map, row));
    PrintBoxTexts(p, row, Black);
}

void CarryLineAlong(Program& p, int row)
{
    DrawLineIn(p.Map, MapOnScreen(p), row, p.Form1->Picture1.BackColor);
    CarryLine(p, row);
    DrawLine(p.Map, MapOnScreen(p), row);
}
} // namespace

Pressed BeginZone(Program& p, const Pointing& pointing)
{
    Shape& zone = p.Form1->Shape3;
    zone.Width = 0;
    zone.Height = 0;
    zone.Move(pointing.At);
    zone.Visible = true;
    return Pressed::Yes;
}

// KEPT(ZoneToolTest.RubberTurnedBackAcrossThePress_KeepsItsLastLeftAndTop): back on the right of the press, or below
// it, the zone keeps the left or top that it had last.
// Mended, it would stand elsewhere, and carry other items.
void StretchZone(Program& p, const Pointing& pointing)
{
    KeepPointer(p, pointing);
    Shape& zone = p.Form1->Shape3;
    zone.Height = std::abs(p.Tools.MoveY - p.Mouse.DownY);
    zone.Width = std::abs(p.Tools.MoveX - p.Mouse.DownX);
    if (p.Tools.MoveX < p.Mouse.DownX)
        zone.Left = p.Mouse.DownX - zone.Width;
    if (p.Tools.MoveY < p.Mouse.DownY)
        zone.Top = p.Mouse.DownY - zone.Height;
}

Released FixZone(Program& p)
{
    const Shape& zone = p.Form1->Shape3;
    p.Tools.ToolSel = ToolSelection::ZoneFixed;
    p.Tools.ZoneLeft = zone.Left;
    p.Tools.ZoneTop = zone.Top;
    p.Tools.ZoneWidth = zone.Width;
    p.Tools.ZoneHeight = zone.Height;
    p.Screen.Pointer = MousePointer::SizeAll;
    return Released::AsItStands;
}

Pressed TakeZone(Program& p, const Pointing&)
{
    KeepLast(p, {p.Form1->Shape3.Left, p.Form1->Shape3.Top});
    return Pressed::Yes;
}

void DragZone(Program& p, const Pointing& pointing)
{
    Shape& zone = p.Form1->Shape3;
    p.Form1->Shape1.Visible = false;
    zone.Move({zone.Left + pointing.At.X - p.Mouse.DownX, zone.Top + pointing.At.Y - p.Mouse.DownY});
    p.Mouse.DownX = pointing.At.X;
    p.Mouse.DownY = pointing.At.Y;
    p.Tools.DeltaX = zone.Left - p.Tools.ZoneLeft;
    p.Tools.DeltaY = zone.Top - p.Tools.ZoneTop;

    PictureBox& picture = p.Form1->Picture1;
    const Colour pen = picture.ForeColor;
    const TextFont font = picture.Font;
    if (p.Tools.ToolSel == ToolSelection::ZoneFixed) {
        TakeWhatLiesInside(p);
        WipeCaptionsInside(p);
    }
    for (int row = 0; row <= p.Tools.ZoneTexts.Last(); ++row) {
        if (p.Tools.ZoneTexts[row])
            CarryTextAlong(p, row);
        if (p.Tools.ZoneBoxes[row])
            CarryBoxAlong(p, row);
        if (p.Tools.ZoneLines[row])
            CarryLineAlong(p, row);
    }
    picture.ForeColor = pen;
    picture.Font = font;
    p.Tools.ZoneLeft = zone.Left;
    p.Tools.ZoneTop = zone.Top;
    p.Tools.ToolSel = ToolSelection::ZoneDrag;
}

Released DropZone(Program& p)
{
    p.Screen.Pointer = MousePointer::Hourglass;
    p.Tools.ToolSel = ToolSelection::None;
    p.Form1->Shape3.Visible = false;
    RaiseTool(p, &forms::Form1::Image2);
    ClearMapPicture(p);
    RedrawMap(p, MapOnScreen(p));
    p.Tools.MapCursorMode = MapCursor::Normal;
    p.Screen.Pointer = MousePointer::Default;
    return Released::AsItStands;
}

} // namespace lineforge
