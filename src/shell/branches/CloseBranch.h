#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// Close DataBase, whether or not a branch is open: saves the boxes, empties map and subject, and closes the database.
// Captions and menus stay as they are. Errors of the disk while saving come through with nothing closed.
void CloseBranch(Program& p);

} // namespace lineforge
