#include "map/items/HitBox.h"

#include "map/items/CurrentBox.h"

namespace lineforge
{

bool HasPosition(const Cell& x, const Cell& y)
{
    return !x.IsZero() && x.IsNumber() && y.IsNumber();
}

bool IsPressInside(const MapMouseState& mouse, const Cell& x, const Cell& y, Size size)
{
    if (!HasPosition(x, y))
        return false;
    const int left = x.Number();
    const int top = y.Number();
    return mouse.DownX > left && mouse.DownX - size.Width < left && mouse.DownY > top &&
           mouse.DownY - size.Height < top;
}

bool PressIsInBox(const MapState& map, const MapMouseState& mouse, int row)
{
    const auto& box = map.BoxArr[row];
    return IsPressInside(mouse, box[BoxColumn::X], box[BoxColumn::Y], {BoxWidth, BoxHeight});
}

namespace
{
// The first box under the press, or the row behind `SBoxes`.
int FirstPressed(const MapState& map, const MapMouseState& mouse)
{
    int row = 0;
    while (row <= map.SBoxes && !PressIsInBox(map, mouse, row))
        ++row;
    return row;
}
} // namespace

std::optional<int> PressedRow(const MapState& map, const MapMouseState& mouse)
{
    const int row = FirstPressed(map, mouse);
    return map.SBoxes != 0 && row <= map.SBoxes ? std::optional(row) : std::nullopt;
}

void HitBox(const MapState& map, MapMouseState& mouse)
{
    if (map.SBoxes == 0)
        return;
    mouse.BoxIdx = FirstPressed(map, mouse);
    mouse.BoxMiss = mouse.BoxIdx > map.SBoxes ? 1 : 0;
}

bool FindsBox(const MapState& map, MapMouseState& mouse)
{
    HitBox(map, mouse);
    if (mouse.BoxMiss == 0 && !HasPlace(map, mouse.BoxIdx))
        mouse.BoxMiss = 1;
    return mouse.BoxMiss == 0;
}

} // namespace lineforge
