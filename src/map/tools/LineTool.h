#pragma once

#include "map/tools/Gesture.h"

namespace lineforge
{

// A new line from the press to the pointer; with Ctrl from the end of the line drawn before, with Shift level or
// upright. One that is too short is taken back.
Pressed BeginLine(const ToolWork& work, const Pointing& pointing);
void StretchLine(const ToolWork& work, const Pointing& pointing);
Released EndLine(const ToolWork& work);

// The line under the press with all that hang on it, to be moved or deleted together.
Pressed TakeChain(const ToolWork& work, const Pointing& pointing);
void DragChain(const ToolWork& work, const Pointing& pointing);
Released DropChain(const ToolWork& work);
Released DeleteChain(const ToolWork& work);

} // namespace lineforge
