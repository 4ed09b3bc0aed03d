#pragma once

#include "map/tools/ToolWork.h"

namespace lineforge
{

// The mouse on the map, in every mode; positions in twips on the picture, `shift` adds up `ShiftMask`. While the tools
// are open a press, its moves and its release are a gesture of the tool in hand. Any mouse button works.
// Error 9 at the 201st item of a kind.
void PressMap(const ToolWork& work, int shift, double x, double y);
// A move without a button held tells that a box has swallowed the release, and ends the gesture.
void MoveOverMap(const ToolWork& work, int buttons, int shift, double x, double y);
void ReleaseMap(const ToolWork& work, double x, double y);

// Ends a gesture that is going on as its release would.
void FinishGesture(const ToolWork& work);

} // namespace lineforge
