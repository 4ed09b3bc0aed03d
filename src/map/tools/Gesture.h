#pragma once

#include "map/tools/ToolWork.h"

#include <algorithm>

namespace lineforge
{

// What a tool is told of a mouse event: the pointer in whole twips on the picture, and the keys that are held.
struct Pointing {
    Point At;
    int Shift = 0; // adds up `ShiftMask`

    bool Holds(int key) const { return (Shift & key) != 0; }
};

// Whether a press is complete, so that moves and the release belong to it.
enum class Pressed { No, Yes };

// Whether a release is followed by a full repainting of the map.
enum class Released { AsItStands, Repaint };

// The row of a new item among those, which the count covers from now on: the first free one above it. After a deletion
// there are items above the count, whose rows they keep. Where that would be no row that is saved it is the first free
// row of all; none of those above the count is free then, and they count again. Only on a full map it is one that isn't
// saved, or the one behind the last.
template <class Rows>
[[nodiscard]] int TakeRow(const Rows& rows, int& count, int lastSaved)
{
    Q_ASSERT(lastSaved <= LastMapRow);
    const auto firstFree = [&](int row) {
        while (row <= LastMapRow && !IsFreeRow(rows[row]))
            ++row;
        return row;
    };
    const int above = firstFree(count + 1);
    const int lowest = above > lastSaved ? firstFree(0) : above;
    if (lowest > lastSaved || lowest == above)
        return count = above;
    count = std::max(count, lastSaved);
    return lowest;
}

// Keeps the pointer of a move; of a line that is drawn it is the far end.
void KeepPointer(const ToolWork& work, const Pointing& pointing);

// Keeps the place from which the next step of a drag is counted.
void KeepLast(ToolState& tools, Point pointer);

// `DeltaX`, `DeltaY` become the way from there to the pointer.
void TakeDelta(ToolState& tools, Point pointer);

// A place that has gone along with the drag; error 6 when that is outside 32 bits.
[[nodiscard]] int Carried(int place, int delta);

// Adds the step of the drag to an item's ends or corner.
void CarryBox(MapState& map, const ToolState& tools, int row);
void CarryLine(MapState& map, const ToolState& tools, int row);
void CarryText(MapState& map, const ToolState& tools, int row);

} // namespace lineforge
