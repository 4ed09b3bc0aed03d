#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The mouse on the map, in every mode; positions in twips on the picture, `shift` adds up `ShiftMask`. While the tools
// are open a press, its moves and its release are a gesture of the tool in hand. Any mouse button works.
// Error 9 at the 201st item of a kind.
void PressMap(Program& p, int shift, double x, double y);
// A move without a button held tells that a box has swallowed the release, and ends the gesture.
void MoveOverMap(Program& p, int buttons, int shift, double x, double y);
void ReleaseMap(Program& p, double x, double y);

// Ends a gesture that is going on as its release would.
void FinishGesture(Program& p);

} // namespace lineforge
