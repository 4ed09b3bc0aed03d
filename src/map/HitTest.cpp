#include "map/HitTest.h"

namespace lineforge
{

bool PressIsInBox(const Program& p, int row)
{
    const int left = p.Map.BoxArr[row][BoxColumn::X].Number();
    const int top = p.Map.BoxArr[row][BoxColumn::Y].Number();
    return p.Mouse.DownX > left && p.Mouse.DownX < left + BoxWidth && p.Mouse.DownY > top &&
           p.Mouse.DownY < top + BoxHeight;
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
