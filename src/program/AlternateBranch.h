#pragma once

#include "program/Program.h"

namespace lineforge
{

// While the record shown comes from a sibling branch the program's directories point there, and the saved ones hold
// those of the branch whose map is on the screen.

// Exchanges `WorkDir` with `WorkDirSaved` and `HomeDir` with `HomeDirSaved`.
void SwapBranchDirs(Program& p);

// Whether the database of the sibling branch of that letter is there; shows a box with its path when it isn't.
bool RequireSibling(Program& p, QStringView letter);

// Points the whole program at the sibling branch of that letter; the map stays.
void SwitchToSibling(Program& p, QStringView letter);

// Back to the branch whose map is shown.
void ReturnFromSibling(Program& p);

// The record scanner walks the open branch again.
void EnableScanner(Program& p);

} // namespace lineforge
