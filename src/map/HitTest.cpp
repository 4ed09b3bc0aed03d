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

void HitBox(Program& p)
{
    if (p.Map.SBoxes == 0)
        return;
    int row = 0;
    while (row <= p.Map.SBoxes && !PressIsInBox(p, row))
        ++row;
    p.Mouse.BoxMiss = row > p.Map.SBoxes ? 1 : 0;
    p.Mouse.BoxIdx = row;
}

} // namespace lineforge
