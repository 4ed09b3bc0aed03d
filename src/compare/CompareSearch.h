#pragma once

#include "compare/Comparison.h"

namespace lineforge
{

// Search: the next pair that agrees on the keys that are ticked, if any are, and the next field in which the pair at
// hand differs. Nothing once a recordset has run out, until Reset.
void SearchCompare(const Comparison& comparison);

// Both branches from their first records again; a branch without records is told. Error 91 while none is compared.
void ResetCompare(const Comparison& comparison);

// The next record of one side, by hand.
void NextCompare(const Comparison& comparison);
void NextCurrent(const Comparison& comparison);

// The compared branch's record bar has been used: shows its record.
void ShowSteppedRecord(const Comparison& comparison);

// One of the two cursors has left the pair at hand: the next search begins with the pair that stands then.
void ForgetPair(CompareState& state, ScratchState& scratch);

// The map, the record form, its scanner or the opening of a branch may have moved a cursor behind the window. Shows
// both sides anew, with no field on show, and forgets the pair; a side without a record stays as it is.
void ShowSidesAnew(const Comparison& comparison);

// Before a command writes. Where the cursor of either side stands on a record that isn't on show: shows both anew, and
// false, since the user hasn't seen yet what would be written to.
bool IsSeen(const Comparison& comparison);

} // namespace lineforge
