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
bool IsInZone(const ToolState& tools, const Cell& x, const Cell& y)
{
    return HasPosition(x, y) && x.Number() > tools.ZoneLeft && x.Number() < tools.ZoneLeft + tools.ZoneWidth &&
           y.Number() > tools.ZoneTop && y.Number() < tools.ZoneTop + tools.ZoneHeight;
}

void TakeWhatLiesInside(const MapState& map, ToolState& tools)
{
    for (int row = 0; row <= tools.ZoneTexts.Last(); ++row) {
        const auto& text = map.TextArr[row];
        const auto& box = map.BoxArr[row];
        const auto& line = map.LineArr[row];
        tools.ZoneTexts[row] = IsInZone(tools, text[TextColumn::X], text[TextColumn::Y]);
        tools.ZoneBoxes[row] = IsInZone(tools, box[BoxColumn::X], box[BoxColumn::Y]);
        tools.ZoneLines[row] = IsInZone(tools, line[LineColumn::X1], line[LineColumn::Y1]);
    }
}

// On its way a box shows the name in its row. What stands in it at first may be another.
void WipeCaptionsInside(const ToolWork& work)
{
    for (int row = 0; row <= work.Tools.ZoneBoxes.Last(); ++row)
        if (work.Tools.ZoneBoxes[row])
            WipeCaption(work.Map, *work.Form1, row);
}

void PrintBoxTexts(const MapState& map, int row, PictureBox& picture, Colour pen)
{
    const auto& box = map.BoxArr[row];
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

void CarryTextAlong(const ToolWork& work, int row)
{
    DrawTextIn(work, MapOnScreen(work.Map, *work.Form1), row, work.Form1->Picture1.BackColor);
    CarryText(work.Map, work.Tools, row);
    DrawText(work, MapOnScreen(work.Map, *work.Form1), row);
}

void CarryBoxAlong(const ToolWork& work, int row)
{
    const Colour paper = work.Form1->Picture1.BackColor;
    DrawBoxIn(work.Map, MapOnScreen(work.Map, *work.Form1), row, paper);
    PrintBoxTexts(work.Map, row, work.Form1->Picture1, paper);
    CarryBox(work.Map, work.Tools, row);
    DrawBoxIn(work.Map, MapOnScreen(work.Map, *work.Form1), row, ColourOfBox(work.Map, row));
    PrintBoxTexts(work.Map, row, work.Form1->Picture1, Black);
}

void CarryLineAlong(const ToolWork& work, int row)
{
    DrawLineIn(work.Map, MapOnScreen(work.Map, *work.Form1), row, work.Form1->Picture1.BackColor);
    CarryLine(work.Map, work.Tools, row);
    DrawLine(work.Map, MapOnScreen(work.Map, *work.Form1), row);
}
} // namespace

Pressed BeginZone(const ToolWork& work, const Pointing& pointing)
{
    Shape& zone = work.Form1->Shape3;
    zone.Width = 0;
    zone.Height = 0;
    zone.Move(pointing.At);
    zone.Visible = true;
    return Pressed::Yes;
}

// KEPT(ZoneToolTest.RubberTurnedBackAcrossThePress_KeepsItsLastLeftAndTop): back on the right of the press, or below
// it, the zone keeps the left or top that it had last.
// Mended, it would stand elsewhere, and carry other items.
void StretchZone(const ToolWork& work, const Pointing& pointing)
{
    KeepPointer(work, pointing);
    Shape& zone = work.Form1->Shape3;
    zone.Height = std::abs(work.Tools.MoveY - work.Mouse.DownY);
    zone.Width = std::abs(work.Tools.MoveX - work.Mouse.DownX);
    if (work.Tools.MoveX < work.Mouse.DownX)
        zone.Left = work.Mouse.DownX - zone.Width;
    if (work.Tools.MoveY < work.Mouse.DownY)
        zone.Top = work.Mouse.DownY - zone.Height;
}

Released FixZone(const ToolWork& work)
{
    const Shape& zone = work.Form1->Shape3;
    work.Tools.ToolSel = ToolSelection::ZoneFixed;
    work.Tools.ZoneLeft = zone.Left;
    work.Tools.ZoneTop = zone.Top;
    work.Tools.ZoneWidth = zone.Width;
    work.Tools.ZoneHeight = zone.Height;
    work.Screen.Pointer = MousePointer::SizeAll;
    return Released::AsItStands;
}

Pressed TakeZone(const ToolWork& work, const Pointing&)
{
    KeepLast(work.Tools, {work.Form1->Shape3.Left, work.Form1->Shape3.Top});
    return Pressed::Yes;
}

void DragZone(const ToolWork& work, const Pointing& pointing)
{
    Shape& zone = work.Form1->Shape3;
    work.Form1->Shape1.Visible = false;
    zone.Move({zone.Left + pointing.At.X - work.Mouse.DownX, zone.Top + pointing.At.Y - work.Mouse.DownY});
    work.Mouse.DownX = pointing.At.X;
    work.Mouse.DownY = pointing.At.Y;
    work.Tools.DeltaX = zone.Left - work.Tools.ZoneLeft;
    work.Tools.DeltaY = zone.Top - work.Tools.ZoneTop;

    PictureBox& picture = work.Form1->Picture1;
    const Colour pen = picture.ForeColor;
    const TextFont font = picture.Font;
    if (work.Tools.ToolSel == ToolSelection::ZoneFixed) {
        TakeWhatLiesInside(work.Map, work.Tools);
        WipeCaptionsInside(work);
    }
    for (int row = 0; row <= work.Tools.ZoneTexts.Last(); ++row) {
        if (work.Tools.ZoneTexts[row])
            CarryTextAlong(work, row);
        if (work.Tools.ZoneBoxes[row])
            CarryBoxAlong(work, row);
        if (work.Tools.ZoneLines[row])
            CarryLineAlong(work, row);
    }
    picture.ForeColor = pen;
    picture.Font = font;
    work.Tools.ZoneLeft = zone.Left;
    work.Tools.ZoneTop = zone.Top;
    work.Tools.ToolSel = ToolSelection::ZoneDrag;
}

Released DropZone(const ToolWork& work)
{
    work.Screen.Pointer = MousePointer::Hourglass;
    work.Tools.ToolSel = ToolSelection::None;
    work.Form1->Shape3.Visible = false;
    RaiseTool(*work.Form1, &forms::Form1::Image2);
    ClearMapPicture(work.Map, *work.Form1);
    RedrawMap(work, MapOnScreen(work.Map, *work.Form1));
    work.Tools.MapCursorMode = MapCursor::Normal;
    work.Screen.Pointer = MousePointer::Default;
    return Released::AsItStands;
}

} // namespace lineforge
