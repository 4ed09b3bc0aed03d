#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// A tile has been dropped on the tile of that index: on itself that is a click, which opens the tile's file, closes
// what is open, or deletes; on another it rearranges the files.
void DropOnTile(Program& p, int index, Image& source);

} // namespace lineforge
