#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The Edit menu of the record form. It knows the box that was last clicked, and what was selected in it at that moment;
// what is replaced is what is selected in it now, or the caret's place.
void CopySelection(Program& p);
void CutSelection(Program& p);
void PasteOverSelection(Program& p);

// The whole record as text; the box that was clicked is forgotten.
void CopyRecord(Program& p);

} // namespace lineforge
