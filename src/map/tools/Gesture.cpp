#include "map/tools/Gesture.h"

#include <limits>

namespace lineforge
{

void KeepPointer(Program& p, const Pointing& pointing)
{
    p.Tools.MoveX = pointing.At.X;
    p.Tools.MoveY = pointing.At.Y;
}

void KeepLast(Program& p, Point pointer)
{
    p.Tools.LastX = pointer.X;
    p.Tools.LastY = pointer.Y;
}

void TakeDelta(Program& p, Point pointer)
{
    p.Tools.DeltaX = pointer.X - p.Tools.LastX;
    p.Tools.DeltaY = pointer.Y - p.Tools.LastY;
}

int Carried(int place, int delta)
{
    const long long sum = static_cast<long long>(place) + delta;
    if (sum < std::numeric_limits<int>::min() || sum > std::numeric_limits<int>::max())
        throw RuntimeError(ErrorNumber::Overflow, QString::number(sum));
    return static_cast<int>(sum);
}

void CarryBox(Program& p, int row)
{
    auto& box = p.Map.BoxArr[row];
    box[BoxColumn::X] = Carried(box[BoxColumn::X].Number(), p.Tools.DeltaX);
    box[BoxColumn::Y] = Carried(box[BoxColumn::Y].Number(), p.Tools.DeltaY);
}

void CarryLine(Program& p, int row)
{
    auto& line = p.Map.LineArr[row];
    for (const int x : {LineColumn::X1, LineColumn::X2})
        line[x] = Carried(line[x], p.Tools.DeltaX);
    for (const int y : {LineColumn::Y1, LineColumn::Y2})
        line[y] = Carried(line[y], p.Tools.DeltaY);
}

void CarryText(Program& p, int row)
{
    auto& text = p.Map.TextArr[row];
    text[TextColumn::X] = Carried(text[TextColumn::X].Number(), p.Tools.DeltaX);
    text[TextColumn::Y] = Carried(text[TextColumn::Y].Number(), p.Tools.DeltaY);
}

} // namespace lineforge
