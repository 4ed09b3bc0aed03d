#include "map/items/HitBox.h"

#include "map/items/CurrentBox.h"

namespace lineforge
{

bool HasPosition(const Cell& x, const Cell& y)
{
    return !x.IsZero() && x.IsNumber() && y.IsNumber();
}

bool IsPressInside(const Program& p, const Cell& x, const Cell& y, Size size)
{
    if (!HasPosition(x, y))
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
int FirstPressed(const Program& p)
{
    int row = 0;
    while (row <= p.Map.SBoxes && !PressIsInBox(p, row))
        ++row;
    return row;
}
} // namespace

std::optional<int> PressedRow(const Program& p)
{
    const int row = FirstPressed(p);
    return p.Map.SBoxes != 0 && row <= p.Map.SBoxes ? std::optional(row) : std::nullopt;
}

void HitBox(Program& p)
{
    if (p.Map.SBoxes == 0)
        return;
    p.Mouse.BoxIdx = FirstPressed(p);
    p.Mouse.BoxMiss = p.Mouse.BoxIdx > p.Map.SBoxes ? 1 : 0;
}

bool FindsBox(Program& p)
{
    HitBox(p);
    if (p.Mouse.BoxMiss == 0 && !HasPlace(p.Map, p.Mouse.BoxIdx))
        p.Mouse.BoxMiss = 1;
    return p.Mouse.BoxMiss == 0;
}

} // namespace lineforge
