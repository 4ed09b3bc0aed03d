#include "map/HitTest.h"

namespace lineforge
{

bool PressIsInBox(const Program& p, int row)
{
    const auto& box = p.Map.BoxArr[row];
    if (box[BoxColumn::X].IsZero() || !box[BoxColumn::X].IsNumber() || !box[BoxColumn::Y].IsNumber())
        return false;
    const int left = box[BoxColumn::X].Number();
    const int top = box[BoxColumn::Y].Number();
    return p.Mouse.DownX > left && p.Mouse.DownX - BoxWidth < left && p.Mouse.DownY > top &&
           p.Mouse.DownY - BoxHeight < top;
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
