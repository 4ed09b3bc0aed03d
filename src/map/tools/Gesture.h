#pragma once

#include "program/Program.h"

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

// The row for a new item: the first above the count that is free. After a deletion there are items above the count,
// whose rows they keep. With none free it is the row behind the last.
template <class IsFree>
int RowForNew(int count, IsFree&& isFree)
{
    int row = count + 1;
    while (row <= LastMapRow && !isFree(row))
        ++row;
    return row;
}

// Keeps the pointer of a move; of a line that is drawn it is the far end.
void KeepPointer(Program& p, const Pointing& pointing);

// Keeps the place from which the next step of a drag is counted.
void KeepLast(Program& p, Point pointer);

// `DeltaX`, `DeltaY` become the way from there to the pointer.
void TakeDelta(Program& p, Point pointer);

// A place that has gone along with the drag; error 6 when that is outside 32 bits.
int Carried(int place, int delta);

// Adds the step of the drag to an item's ends or corner.
void CarryBox(Program& p, int row);
void CarryLine(Program& p, int row);
void CarryText(Program& p, int row);

} // namespace lineforge
