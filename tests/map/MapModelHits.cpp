#include "map/MapModelCells.h"

#include <algorithm>

// What a press finds on the map of the model.
namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
bool IsStrictlyWithin(Point point, const QString& left, const QString& top, int width, int height)
{
    const std::optional<int> x = NumberIn(left);
    const std::optional<int> y = NumberIn(top);
    return x && y && *x != 0 && point.X > *x && point.X < *x + width && point.Y > *y && point.Y < *y + height;
}

bool IsHit(const MapModel::Line& line, Point press)
{
    const auto [x1, y1, x2, y2, colour] = line;
    const auto [x, y] = press;
    if (x1 == 0)
        return false;
    if (IsBetween(x, x1, x2) && ((y + 20 > y2 && y - 20 < y1) || (y + 20 < y2 && y - 20 > y1)))
        return true;
    return IsBetween(y, y1, y2) && ((x - 20 > x2 && x + 20 < x1) || (x + 20 > x2 && x - 20 < x1));
}
} // namespace

bool MapModel::IsInBox(int row) const
{
    const Cells& box = Boxes.at(static_cast<std::size_t>(row));
    return IsStrictlyWithin(Down, box[0], box[1], 615, 217);
}

void MapModel::HitBox()
{
    if (SBoxes == 0)
        return;
    BoxIdx = 0;
    while (BoxIdx <= SBoxes && !IsInBox(BoxIdx))
        ++BoxIdx;
    BoxMiss = BoxIdx > SBoxes ? 1 : 0;
}

// A hit of before whose item is gone, or at no place, is a miss.
bool MapModel::FindsBox()
{
    HitBox();
    if (BoxMiss == 0 && !IsPlaced(At(Boxes, BoxIdx)))
        BoxMiss = 1;
    return BoxMiss == 0;
}

void MapModel::HitText()
{
    if (STexts == 0)
        return;
    TextIdx = 0;
    while (TextIdx <= STexts && !IsStrictlyWithin(Down, At(Texts, TextIdx)[0], At(Texts, TextIdx)[1], 600, 100))
        ++TextIdx;
    TextMiss = TextIdx > STexts ? 1 : 0;
}

bool MapModel::TakesText()
{
    HitText();
    if (TextMiss != 0)
        return false;
    if (const Cells& text = At(Texts, TextIdx); IsFree(text) || !NumberIn(text[0]) || !NumberIn(text[1]))
        TextMiss = 1;
    return TextMiss == 0;
}

void MapModel::HitLine()
{
    if (SLines == 0)
        return;
    int row = 0;
    while (row <= SLines && !IsHit(At(Lines, row), Down))
        ++row;
    LineMiss = row > SLines ? 1 : 0;
    Chain = {row};
    BuildChain();
}

// Each pass follows the newest line of the one before. Line 0 counts as listed already; a free row is no line.
void MapModel::BuildChain()
{
    const auto meets = [](const Line& one, const Line& other) {
        const auto [x1, y1, x2, y2, colour] = other;
        const auto isEnd = [&](int x, int y) { return (x == x1 && y == y1) || (x == x2 && y == y2); };
        return isEnd(one[0], one[1]) || isEnd(one[2], one[3]);
    };
    std::size_t followed = 0;
    do {
        followed = Chain.size() - 1;
        const Line line = At(Lines, Chain[followed]);
        for (int row = 1; row <= SLines && Chain.size() <= 100; ++row)
            if (At(Lines, row)[0] != 0 && meets(line, At(Lines, row)) &&
                std::find(Chain.begin(), Chain.end(), row) == Chain.end())
                Chain.push_back(row);
    } while (Chain.size() - 1 > followed && Chain.size() <= 100);
}

bool MapModel::TakesChain()
{
    HitLine();
    if (LineMiss == 0 && At(Lines, Chain[0])[0] == 0)
        LineMiss = 1;
    return LineMiss == 0;
}

} // namespace lineforge
