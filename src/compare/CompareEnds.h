#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The ends that a search or a step can come to: each is told, and empties the two field boxes.

// A recordset has run out: nothing more is searched until Reset.
void EndAtCurrent(Program& p);
void EndAtCompare(Program& p);

// No pair, or no field, is left; the frames say which. The second ends the search until Reset, with the button green
// all the same.
void EndOfRecords(Program& p);
void EndOfFieldSearch(Program& p);

// What the frames say then.
void CaptionEndOfFieldSearch(Program& p);

} // namespace lineforge
