#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The New command: saves the boxes of the open branch, clears the map, asks for a name and makes a branch of that name
// in the first free directory. Cancelled at a question it leaves the map cleared and the old branch open. Errors of the
// disk come through, but for a directory that is there already, which has a box of its own.
void NewBranch(Program& p);

} // namespace lineforge
