#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The Delete command: after two questions the tools are left, and the branch's files, its directories and its entry in
// the registry go. All errors are passed over: what can't be removed stays on the disk, with its directory, and no list
// shows it any more. Removes nothing where no branch directory beneath the home directory is open, which is told, and
// nothing through a link.
// KEPT(DeleteBranchTest.Windows_ShowNoBranch_TheMapsArraysStay): `sDbaseName` and the map's arrays stay.
// Mended, commands that need a branch would tell that none is open.
void DeleteBranch(Program& p);

} // namespace lineforge
