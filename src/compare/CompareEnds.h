#pragma once

#include "compare/Comparison.h"

namespace lineforge
{

// The ends that a search or a step can come to: each is told, and empties the two field boxes.

// A recordset has run out: nothing more is searched until Reset.
void EndAtCurrent(const Comparison& comparison);
void EndAtCompare(const Comparison& comparison);

// No pair, or no field, is left; the frames say which. The second ends the search until Reset, with the button green
// all the same.
void EndOfRecords(const Comparison& comparison);
void EndOfFieldSearch(const Comparison& comparison);

// What the frames say then.
void CaptionEndOfFieldSearch(forms::Form6& form);

} // namespace lineforge
