#pragma once

#include "program/Program.h"

namespace lineforge
{

// Whether the last press lies inside an area of that size, of which the two cells tell the top left; its edges are
// outside. A free row, or one whose position is no number, has no inside.
bool IsPressInside(const Program& p, const Cell& x, const Cell& y, Size size);

// Whether the last press lies inside the box of that row.
bool PressIsInBox(const Program& p, int row);

// Whether the last press lies inside any box of the rows 0 to `SBoxes`; with `SBoxes` 0 it doesn't. Nothing is kept.
bool IsAnyBoxPressed(const Program& p);

// Looks for the first box under the last press, rows 0 to `SBoxes`. `BoxIdx` becomes its row, or the row behind
// `SBoxes`, and `BoxMiss` tells which. With `SBoxes` 0 both stay as they were.
void HitBox(Program& p);

// The same, and whether there is a box where it was found: with `SBoxes` 0 the hit before stands, maybe on one that is
// gone, which is a miss.
bool FindsBox(Program& p);

} // namespace lineforge
