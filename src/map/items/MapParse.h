#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// Split the three lists into the arrays and draw each item as it comes. A list shorter than 9 characters counts as
// empty. Rows beyond the arrays are passed over in boxes and texts, with whatever else fails there; in lines they are
// error 9, and a value that is no number error 13.

// Then draws the captions of all boxes; the current record stays.
void ParseBoxes(Program& p);
void ParseLines(Program& p);
void ParseTexts(Program& p);

// All three, whatever is spoilt: a list of lines that breaks off costs the lines from there on, and nothing else.
void ParseWhatIsThere(Program& p);

} // namespace lineforge
