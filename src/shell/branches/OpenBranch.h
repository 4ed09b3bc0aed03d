#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The Open command: saves the boxes of the open branch and shows the list of branches.
void ChooseBranch(Program& p);

// The list's load: the home directory's path and the branches of its registry.
void LoadBranchList(Program& p);

// Opens the branch selected in the list: database, map, first subject. A database that can't be opened ends it with a
// box; whatever fails after that costs only its own part of the picture.
void OpenSelectedBranch(Program& p);

// The list goes, whether a branch has been chosen or not, and with it the request for one to compare with.
void CloseBranchList(Program& p);

// Another registry file: its directory becomes the home directory for the rest of the run.
void ChangeHomeDirectory(Program& p);

} // namespace lineforge
