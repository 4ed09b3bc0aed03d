#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/drawing/Geometry.h"
#include "platform/machine/Prompts.h"
#include "program/state/MapMouseState.h"
#include "program/state/MapState.h"
#include "program/state/ToolState.h"

namespace lineforge
{

// Looks for the first line under the last press, rows 0 to `SLines`, and for those that hang on it end by end.
// `LineMiss` tells whether none was hit; `LineChain` from 0 to `ChainTop` are the lines found, the hit one first. With
// `SLines` 0 all stay as they were. A free row is neither hit nor found. An error is shown, not raised.
void HitLine(MapState& map, ToolState& tools, const MapMouseState& mouse, ErrorState& errors, Prompts& prompts);

// The same, and whether there is a line where it was found: with `SLines` 0 the hit before stands, maybe on one that is
// gone, which is a miss.
[[nodiscard]] bool FindsLine(MapState& map, ToolState& tools, const MapMouseState& mouse, ErrorState& errors,
                             Prompts& prompts);

// Whether a press there hits that line: the rule for lines is no distance. A level or upright line is met within 20
// twips of either side, a slanted one in parts of its rectangle, other parts when it falls than when it rises.
bool IsLineHit(const FixedArray<int, 0, 4>& line, Point press);

} // namespace lineforge
