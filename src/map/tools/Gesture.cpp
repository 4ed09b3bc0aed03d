#include "map/tools/Gesture.h"

#include <limits>

namespace lineforge
{

void KeepPointer(const ToolWork& work, const Pointing& pointing)
{
    work.Tools.MoveX = pointing.At.X;
    work.Tools.MoveY = pointing.At.Y;
}

void KeepLast(ToolState& tools, Point pointer)
{
    tools.LastX = pointer.X;
    tools.LastY = pointer.Y;
}

void TakeDelta(ToolState& tools, Point pointer)
{
    tools.DeltaX = pointer.X - tools.LastX;
    tools.DeltaY = pointer.Y - tools.LastY;
}

int Carried(int place, int delta)
{
    const long long sum = static_cast<long long>(place) + delta;
    if (sum < std::numeric_limits<int>::min() || sum > std::numeric_limits<int>::max())
        throw RuntimeError(ErrorNumber::Overflow, QString::number(sum));
    return static_cast<int>(sum);
}

void CarryBox(MapState& map, const ToolState& tools, int row)
{
    auto& box = map.BoxArr[row];
    box[BoxColumn::X] = Carried(box[BoxColumn::X].Number(), tools.DeltaX);
    box[BoxColumn::Y] = Carried(box[BoxColumn::Y].Number(), tools.DeltaY);
}

void CarryLine(MapState& map, const ToolState& tools, int row)
{
    auto& line = map.LineArr[row];
    for (const int x : {LineColumn::X1, LineColumn::X2})
        line[x] = Carried(line[x], tools.DeltaX);
    for (const int y : {LineColumn::Y1, LineColumn::Y2})
        line[y] = Carried(line[y], tools.DeltaY);
}

void CarryText(MapState& map, const ToolState& tools, int row)
{
    auto& text = map.TextArr[row];
    text[TextColumn::X] = Carried(text[TextColumn::X].Number(), tools.DeltaX);
    text[TextColumn::Y] = Carried(text[TextColumn::Y].Number(), tools.DeltaY);
}

} // namespace lineforge
