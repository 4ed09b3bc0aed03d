#include "map/HitTest.h"

namespace lineforge
{

bool IsPressInside(const Program& p, const Cell& x, const Cell& y, Size size)
{
    if (x.IsZero() || !x.IsNumber() || !y.IsNumber())
        return false;
    const int left = x.Number();
    const int top = y.Number();
    return p.Mouse.DownX > left && p.Mouse.DownX - size.Width < left && p.Mouse.DownY > top &&
           p.Mouse.DownY - size.Height < top;
}

bool PressIsInBox(const Program& p, int row)
{
    const auto& box = p.Map.BoxArr[row];
    return IsPressInside(p, box[BoxColumn::X], box[BoxColumn::Y], {BoxWidth, BoxHeight});
}

namespace
{
// The first box under the press, or the row behind `SBoxes`.
int PressedRow(const Program& p)
{
    int row = 0;
    while (row <= p.Map.SBoxes && !PressIsInBox(p, row))
        ++row;
    return row;
}
} // namespace

bool IsAnyBoxPressed(const Program& p)
{
    return p.Map.SBoxes != 0 && PressedRow(p) <= p.Map.SBoxes;
}

void HitBox(Program& p)
{
    if (p.Map.SBoxes == 0)
        return;
    p.Mouse.BoxIdx = PressedRow(p);
    p.Mouse.BoxMiss = p.Mouse.BoxIdx > p.Map.SBoxes ? 1 : 0;
}

bool FindsBox(Program& p)
{
    HitBox(p);
    if (p.Mouse.BoxMiss == 0 && p.Map.BoxArr[p.Mouse.BoxIdx][BoxColumn::X].IsZero())
        p.Mouse.BoxMiss = 1;
    return p.Mouse.BoxMiss == 0;
}

} // namespace lineforge
