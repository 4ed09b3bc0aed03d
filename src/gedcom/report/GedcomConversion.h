#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// Asks for a GEDCOM file and writes it anew as a text report beside it, family by family, showing the same lines in a
// window. Nothing goes into the branch. Whatever goes wrong on the way ends the report there and no other way than a
// good run ends. No errors.
void ConvertGedcom(Program& p);

// Closes what a conversion has open; what has been written stays. No errors.
void CloseConversionFiles(Program& p);

// Puts the window of the conversion in the middle of the main window.
void CentreConversion(Program& p);

} // namespace lineforge
