#pragma once

#include "platform/drawing/Geometry.h"
#include "program/state/MapMouseState.h"
#include "program/state/MapState.h"

#include <optional>

namespace lineforge
{

// Whether an item whose top left the two cells tell stands anywhere: its row isn't free, nor its position no number.
bool HasPosition(const Cell& x, const Cell& y);

// Whether the last press lies inside an area of that size, of which the two cells tell the top left; its edges are
// outside. What has no position has no inside.
bool IsPressInside(const MapMouseState& mouse, const Cell& x, const Cell& y, Size size);

// Whether the last press lies inside the box of that row.
bool PressIsInBox(const MapState& map, const MapMouseState& mouse, int row);

// The first box of the rows 0 to `SBoxes` that the last press lies inside; with `SBoxes` 0 there is none. Nothing is
// kept.
[[nodiscard]] std::optional<int> PressedRow(const MapState& map, const MapMouseState& mouse);

// Looks for the first box under the last press, rows 0 to `SBoxes`. `BoxIdx` becomes its row, or the row behind
// `SBoxes`, and `BoxMiss` tells which. With `SBoxes` 0 both stay as they were.
void HitBox(const MapState& map, MapMouseState& mouse);

// The same, and whether there is a box where it was found: with `SBoxes` 0 the hit before stands, maybe on one that is
// gone or at no possible place, which is a miss.
[[nodiscard]] bool FindsBox(const MapState& map, MapMouseState& mouse);

} // namespace lineforge
