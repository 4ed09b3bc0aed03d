#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// Search: the next pair that agrees on the keys that are ticked, if any are, and the next field in which the pair at
// hand differs. Nothing once a recordset has run out, until Reset.
void SearchCompare(Program& p);

// Both branches from their first records again; a branch without records is told. Error 91 while none is compared.
void ResetCompare(Program& p);

// The next record of one side, by hand.
void NextCompare(Program& p);
void NextCurrent(Program& p);

// The compared branch's record bar has been used: shows its record.
void ShowSteppedRecord(Program& p);

// One of the two cursors has left the pair at hand: the next search begins with the pair that stands then.
void ForgetPair(Program& p);

// The map, the record form, its scanner or the opening of a branch may have moved a cursor behind the window. Shows
// both sides anew, with no field on show, and forgets the pair; a side without a record stays as it is.
void ShowSidesAnew(Program& p);

// Before a command writes. Where the cursor of either side stands on a record that isn't on show: shows both anew, and
// false, since the user hasn't seen yet what would be written to.
bool IsSeen(Program& p);

} // namespace lineforge
