#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The Make Backup command: database and map of the branch in `WorkDir` go, under the chosen name, into a ".~md" and a
// ".~cf" file. Pictures and gallery don't go along. A failure ends it in silence, and may leave the record form closed,
// and with it the database; so it is meant to be.
void BackUpBranch(Program& p);

} // namespace lineforge
