#pragma once

#include "map/tools/Gesture.h"

namespace lineforge
{

// A new line from the press to the pointer; with Ctrl from the end of the line drawn before, with Shift level or
// upright. One that is too short is taken back.
Pressed BeginLine(Program& p, const Pointing& pointing);
void StretchLine(Program& p, const Pointing& pointing);
Released EndLine(Program& p);

// The line under the press with all that hang on it, to be moved or deleted together.
Pressed TakeChain(Program& p, const Pointing& pointing);
void DragChain(Program& p, const Pointing& pointing);
Released DropChain(Program& p);
Released DeleteChain(Program& p);

} // namespace lineforge
