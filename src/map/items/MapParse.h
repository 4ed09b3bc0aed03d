#pragma once

#include "map/items/MapWork.h"

namespace lineforge
{

// Split the three lists into the arrays and draw each item as it comes. A list shorter than 9 characters counts as
// empty. Rows beyond the arrays are passed over in boxes and texts, with whatever else fails there; in lines they are
// error 9, and a value that is no number error 13.

// Then draws the captions of all boxes; the current record stays.
void ParseBoxes(const MapWork& work);
void ParseLines(const MapPicture& shown);
void ParseTexts(const MapPicture& shown);

// All three, whatever is spoilt: a list of lines that breaks off costs the lines from there on, and nothing else.
void ParseWhatIsThere(const MapWork& work);

} // namespace lineforge
