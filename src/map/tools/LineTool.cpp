#include "map/tools/LineTool.h"

#include "forms/Form1.h"
#include "map/items/HitLine.h"
#include "map/items/MapItems.h"
#include "map/items/PointerOnMap.h"

#include <cstdlib>

namespace lineforge
{

namespace
{
// A line that stays below both is refused.
constexpr int shortestAcross = 100;
constexpr int shortestDown = 50;

FixedArray<int, 0, 4>& NewLine(MapState& map, const ToolState& tools)
{
    return map.LineArr[tools.NewRow];
}

// Of the line drawn last, wherever its row is; where there is none any more, of the one nearest before the new line,
// which is the highest of all for one in a low row. Negative before the first of all.
int RowOfLineBefore(const MapState& map, const ToolState& tools)
{
    if (tools.LineRow >= 0 && !IsFreeRow(map.LineArr[tools.LineRow]))
        return tools.LineRow;
    int row = tools.NewRow < map.SLines ? map.SLines : tools.NewRow - 1;
    while (row >= 0 && IsFreeRow(map.LineArr[row]))
        --row;
    return row;
}

Point EndOfLineBefore(const MapState& map, const ToolState& tools)
{
    const int row = RowOfLineBefore(map, tools);
    if (row < 0)
        return {};
    const auto& before = map.LineArr[row];
    return PointerOnMap(before[LineColumn::X2], before[LineColumn::Y2]);
}

Point Down(const MapMouseState& mouse)
{
    return {mouse.DownX, mouse.DownY};
}

int Across(const MapMouseState& mouse, const ToolState& tools)
{
    return std::abs(tools.MoveX - mouse.DownX);
}

int Downwards(const MapMouseState& mouse, const ToolState& tools)
{
    return std::abs(tools.MoveY - mouse.DownY);
}

// At equal distances the line stays diagonal.
void Square(const MapMouseState& mouse, ToolState& tools)
{
    if (Across(mouse, tools) > Downwards(mouse, tools))
        tools.MoveY = mouse.DownY;
    if (Downwards(mouse, tools) > Across(mouse, tools))
        tools.MoveX = mouse.DownX;
}

void DrawIn(PictureBox& picture, Colour pen, Point from, Point to)
{
    picture.ForeColor = pen;
    picture.Line(from, to);
}

// At the first step of a line this paints to the point 0, 0; the repainting after the release mends it.
void WipeNewLine(const ToolWork& work)
{
    PictureBox& picture = work.Form1->Picture1;
    const auto& line = NewLine(work.Map, work.Tools);
    const Colour pen = picture.ForeColor;
    DrawIn(picture, picture.BackColor, Down(work.Mouse), {line[LineColumn::X2], line[LineColumn::Y2]});
    picture.ForeColor = pen;
}

void PutEnds(const ToolWork& work)
{
    auto& line = NewLine(work.Map, work.Tools);
    line[LineColumn::X1] = work.Mouse.DownX;
    line[LineColumn::Y1] = work.Mouse.DownY;
    line[LineColumn::X2] = work.Tools.MoveX;
    line[LineColumn::Y2] = work.Tools.MoveY;
}

template <class Act>
void ForEachOfChain(const MapState& map, const ToolState& tools, Act&& act)
{
    for (int entry = 0; entry <= tools.ChainTop; ++entry)
        act(map.LineChain[entry]);
}

Colour ColourOfLine(const MapState& map, int row)
{
    return static_cast<Colour>(map.LineArr[row][LineColumn::Colour]);
}

// The rubber pen takes off what it has drawn; before its first stroke the line is wiped. The other lines of a chain
// come when the first has changed the pen: they are taken off with it, too.
void DragOne(const ToolWork& work, int row)
{
    PictureBox& picture = work.Form1->Picture1;
    DrawLineIn(work.Map, MapOnScreen(work.Map, *work.Form1), row,
               picture.Mode == DrawMode::NotXor ? ColourOfLine(work.Map, row) : picture.BackColor);
    CarryLine(work.Map, work.Tools, row);
    picture.Mode = DrawMode::NotXor;
    DrawLineIn(work.Map, MapOnScreen(work.Map, *work.Form1), row, ColourOfLine(work.Map, row));
}

// Where two lines of the chain met, both have been taken off one pixel, which shows again by that.
void WipeWhereTheChainLay(const ToolWork& work)
{
    PictureBox& picture = work.Form1->Picture1;
    const Colour pen = picture.ForeColor;
    const int dx = work.Mouse.DownX - work.Tools.LastX;
    const int dy = work.Mouse.DownY - work.Tools.LastY;
    ForEachOfChain(work.Map, work.Tools, [&](int row) {
        const auto& line = work.Map.LineArr[row];
        DrawIn(picture, picture.BackColor, {Carried(line[LineColumn::X1], dx), Carried(line[LineColumn::Y1], dy)},
               {Carried(line[LineColumn::X2], dx), Carried(line[LineColumn::Y2], dy)});
    });
    picture.ForeColor = pen;
}
} // namespace

Pressed BeginLine(const ToolWork& work, const Pointing& pointing)
{
    work.Tools.CountSave = work.Map.SLines;
    work.Tools.NewRow = TakeRow(work.Map.LineArr, work.Map.SLines, LastFiledLine);
    if (pointing.Holds(ShiftMask::Ctrl)) {
        const Point end = EndOfLineBefore(work.Map, work.Tools);
        work.Mouse.DownX = end.X;
        work.Mouse.DownY = end.Y;
    }
    NewLine(work.Map, work.Tools)[LineColumn::X1] = work.Mouse.DownX;
    NewLine(work.Map, work.Tools)[LineColumn::Y1] = work.Mouse.DownY;
    work.Tools.PenSave = work.Form1->Picture1.ForeColor;
    return Pressed::Yes;
}

void StretchLine(const ToolWork& work, const Pointing& pointing)
{
    KeepPointer(work, pointing);
    if (pointing.Holds(ShiftMask::Shift))
        Square(work.Mouse, work.Tools);
    WipeNewLine(work);
    PutEnds(work);
    DrawIn(work.Form1->Picture1, work.Form1->CommonDialog1.Color, Down(work.Mouse),
           {work.Tools.MoveX, work.Tools.MoveY});
}

// KEPT(LineToolTest.PressAndReleaseWithoutAMove_FarFromTheLastGesture_KeepsALineToThere): without a move the far end is
// that of the gesture before.
// Mended, a mere click would never leave a line.
Released EndLine(const ToolWork& work)
{
    PictureBox& picture = work.Form1->Picture1;
    if (Across(work.Mouse, work.Tools) < shortestAcross && Downwards(work.Mouse, work.Tools) < shortestDown) {
        WipeNewLine(work);
        NewLine(work.Map, work.Tools).Erase();
        work.Map.SLines = work.Tools.CountSave;
        picture.ForeColor = work.Tools.PenSave;
        return Released::AsItStands;
    }
    PutEnds(work);
    NewLine(work.Map, work.Tools)[LineColumn::Colour] = static_cast<int>(picture.ForeColor);
    work.Tools.LineRow = work.Tools.NewRow;
    picture.ForeColor = work.Tools.PenSave;
    return Released::Repaint;
}

Pressed TakeChain(const ToolWork& work, const Pointing& pointing)
{
    if (!FindsLine(work.Map, work.Tools, work.Mouse, work.Errors, work.Prompts))
        return Pressed::No;
    KeepLast(work.Tools, pointing.At);
    return Pressed::Yes;
}

void DragChain(const ToolWork& work, const Pointing& pointing)
{
    KeepPointer(work, pointing);
    if (work.Tools.LineMiss != 0)
        return;
    TakeDelta(work.Tools, pointing.At);
    ForEachOfChain(work.Map, work.Tools, [&](int row) { DragOne(work, row); });
    KeepLast(work.Tools, pointing.At);
}

Released DropChain(const ToolWork& work)
{
    PictureBox& picture = work.Form1->Picture1;
    const bool isDragged = picture.Mode == DrawMode::NotXor;
    picture.Mode = DrawMode::Copy;
    if (isDragged)
        WipeWhereTheChainLay(work);
    return Released::Repaint;
}

Released DeleteChain(const ToolWork& work)
{
    if (work.Tools.LineMiss != 0)
        return Released::Repaint;
    ForEachOfChain(work.Map, work.Tools, [&](int row) {
        DrawLineIn(work.Map, MapOnScreen(work.Map, *work.Form1), row, work.Form1->Picture1.BackColor);
        work.Map.LineArr[row].Erase();
    });
    // KEPT(LineToolTest.Delete_ChainOfThree_RemovesAllThree_AndLowersTheCountByOne): once, however many lines went with
    // it: the highest rows stay in the count.
    // Mended, more of the lines that are left would fall out of it, and new lines take their rows.
    work.Map.SLines -= 1;
    return Released::Repaint;
}

} // namespace lineforge
