#include "map/items/PointerOnMap.h"

#include <algorithm>

namespace lineforge
{

namespace
{
// A zone can carry items from its edge to the other edge once more, and every place must stay within 16 bits.
constexpr double furthestBefore = -8000;
constexpr double furthestBehind = 16000;

int Whole(double twips)
{
    return static_cast<int>(std::clamp(twips, furthestBefore, furthestBehind));
}
} // namespace

Point PointerOnMap(double x, double y)
{
    return {Whole(x), Whole(y)};
}

} // namespace lineforge
