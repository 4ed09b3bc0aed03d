#pragma once

#include "program/branch/BranchAccess.h"
#include "program/state/MapState.h"

namespace lineforge
{

// The Make Backup command: database and map of the branch in `WorkDir` go, under the chosen name, into a ".~md" and a
// ".~cf" file. Pictures and gallery don't go along. Another program that is just changing the database is waited for as
// long as the user wants to. A failure ends it in silence. KEPT(BackUpBranchTest.PlaceThatCantBeWritten_EndsInSilence):
// it may leave the record form closed then, and with it the database. Mended, a backup that failed would be told, and
// the records be open behind it.
void BackUpBranch(const BranchAccess& access, MapState& map, ErrorState& errors);

} // namespace lineforge
