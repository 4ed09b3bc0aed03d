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

FixedArray<int, 0, 4>& NewLine(Program& p)
{
    return p.Map.LineArr[p.Tools.NewRow];
}

// Of the line drawn last, wherever its row is; where there is none any more, of the one nearest before the new line,
// which is the highest of all for one in a low row. Negative before the first of all.
int RowOfLineBefore(const Program& p)
{
    if (p.Tools.LineRow >= 0 && !IsFreeRow(p.Map.LineArr[p.Tools.LineRow]))
        return p.Tools.LineRow;
    int row = p.Tools.NewRow < p.Map.SLines ? p.Map.SLines : p.Tools.NewRow - 1;
    while (row >= 0 && IsFreeRow(p.Map.LineArr[row]))
        --row;
    return row;
}

Point EndOfLineBefore(const Program& p)
{
    const int row = RowOfLineBefore(p);
    if (row < 0)
        return {};
    const auto& before = p.Map.LineArr[row];
    return PointerOnMap(before[LineColumn::X2], before[LineColumn::Y2]);
}

Point Down(const Program& p)
{
    return {p.Mouse.DownX, p.Mouse.DownY};
}

int Across(const Program& p)
{
    return std::abs(p.Tools.MoveX - p.Mouse.DownX);
}

int Downwards(const Program& p)
{
    return std::abs(p.Tools.MoveY - p.Mouse.DownY);
}

// At equal distances the line stays diagonal.
void Square(Program& p)
{
    if (Across(p) > Downwards(p))
        p.Tools.MoveY = p.Mouse.DownY;
    if (Downwards(p) > Across(p))
        p.Tools.MoveX = p.Mouse.DownX;
}

void DrawIn(PictureBox& picture, Colour pen, Point from, Point to)
{
    picture.ForeColor = pen;
    picture.Line(from, to);
}

// At the first step of a line this paints to the point 0, 0; the repainting after the release mends it.
void WipeNewLine(Program& p)
{
    PictureBox& picture = p.Form1->Picture1;
    const auto& line = NewLine(p);
    const Colour pen = picture.ForeColor;
    DrawIn(picture, picture.BackColor, Down(p), {line[LineColumn::X2], line[LineColumn::Y2]});
    picture.ForeColor = pen;
}

void PutEnds(Program& p)
{
    auto& line = NewLine(p);
    line[LineColumn::X1] = p.Mouse.DownX;
    line[LineColumn::Y1] = p.Mouse.DownY;
    line[LineColumn::X2] = p.Tools.MoveX;
    line[LineColumn::Y2] = p.Tools.MoveY;
}

template <class Act>
void ForEachOfChain(Program& p, Act&& act)
{
    for (int entry = 0; entry <= p.Tools.ChainTop; ++entry)
        act(p.Map.LineChain[entry]);
}

Colour ColourOfLine(const Program& p, int row)
{
    return static_cast<Colour>(p.Map.LineArr[row][LineColumn::Colour]);
}

// The rubber pen takes off what it has drawn; before its first stroke the line is wiped. The other lines of a chain
// come when the first has changed the pen: they are taken off with it, too.
void DragOne(Program& p, int row)
{
    PictureBox& picture = p.Form1->Picture1;
    DrawLineIn(p.Map, MapOnScreen(p), row, picture.Mode == DrawMode::NotXor ? ColourOfLine(p, row) : picture.BackColor);
    CarryLine(p, row);
    picture.Mode = DrawMode::NotXor;
    DrawLineIn(p.Map, MapOnScreen(p), row, ColourOfLine(p, row));
}

// Where two lines of the chain met, both have been taken off one pixel, which shows again by that.
void WipeWhereTheChainLay(Program& p)
{
    PictureBox& picture = p.Form1->Picture1;
    const Colour pen = picture.ForeColor;
    const int dx = p.Mouse.DownX - p.Tools.LastX;
    const int dy = p.Mouse.DownY - p.Tools.LastY;
    ForEachOfChain(p, [&](int row) {
        const auto& line = p.Map.LineArr[row];
        DrawIn(picture, picture.BackColor, {Carried(line[LineColumn::X1], dx), Carried(line[LineColumn::Y1], dy)},
               {Carried(line[LineColumn::X2], dx), Carried(line[LineColumn::Y2], dy)});
    });
    picture.ForeColor = pen;
}
} // namespace

Pressed BeginLine(Program& p, const Pointing& pointing)
{
    p.Tools.CountSave = p.Map.SLines;
    p.Tools.NewRow = TakeRow(p.Map.LineArr, p.Map.SLines, LastFiledLine);
    if (pointing.Holds(ShiftMask::Ctrl)) {
        const Point end = EndOfLineBefore(p);
        p.Mouse.DownX = end.X;
        p.Mouse.DownY = end.Y;
    }
    NewLine(p)[LineColumn::X1] = p.Mouse.DownX;
    NewLine(p)[LineColumn::Y1] = p.Mouse.DownY;
    p.Tools.PenSave = p.Form1->Picture1.ForeColor;
    return Pressed::Yes;
}

void StretchLine(Program& p, const Pointing& pointing)
{
    KeepPointer(p, pointing);
    if (pointing.Holds(ShiftMask::Shift))
        Square(p);
    WipeNewLine(p);
    PutEnds(p);
    DrawIn(p.Form1->Picture1, p.Form1->CommonDialog1.Color, Down(p), {p.Tools.MoveX, p.Tools.MoveY});
}

// KEPT(LineToolTest.PressAndReleaseWithoutAMove_FarFromTheLastGesture_KeepsALineToThere): without a move the far end is
// that of the gesture before.
// Mended, a mere click would never leave a line.
Released EndLine(Program& p)
{
    PictureBox& picture = p.Form1->Picture1;
    if (Across(p) < shortestAcross && Downwards(p) < shortestDown) {
        WipeNewLine(p);
        NewLine(p).Erase();
        p.Map.SLines = p.Tools.CountSave;
        picture.ForeColor = p.Tools.PenSave;
        return Released::AsItStands;
    }
    PutEnds(p);
    NewLine(p)[LineColumn::Colour] = static_cast<int>(picture.ForeColor);
    p.Tools.LineRow = p.Tools.NewRow;
    picture.ForeColor = p.Tools.PenSave;
    return Released::Repaint;
}

Pressed TakeChain(Program& p, const Pointing& pointing)
{
    if (!FindsLine(p))
        return Pressed::No;
    KeepLast(p, pointing.At);
    return Pressed::Yes;
}

void DragChain(Program& p, const Pointing& pointing)
{
    KeepPointer(p, pointing);
    if (p.Tools.LineMiss != 0)
        return;
    TakeDelta(p, pointing.At);
    ForEachOfChain(p, [&](int row) { DragOne(p, row); });
    KeepLast(p, pointing.At);
}

Released DropChain(Program& p)
{
    PictureBox& picture = p.Form1->Picture1;
    const bool isDragged = picture.Mode == DrawMode::NotXor;
    picture.Mode = DrawMode::Copy;
    if (isDragged)
        WipeWhereTheChainLay(p);
    return Released::Repaint;
}

Released DeleteChain(Program& p)
{
    if (p.Tools.LineMiss != 0)
        return Released::Repaint;
    ForEachOfChain(p, [&](int row) {
        DrawLineIn(p.Map, MapOnScreen(p), row, p.Form1->Picture1.BackColor);
        p.Map.LineArr[row].Erase();
    });
    // KEPT(LineToolTest.Delete_ChainOfThree_RemovesAllThree_AndLowersTheCountByOne): once, however many lines went with
    // it: the highest rows stay in the count.
    // Mended, more of the lines that are left would fall out of it, and new lines take their rows.
    p.Map.SLines -= 1;
    return Released::Repaint;
}

} // namespace lineforge
