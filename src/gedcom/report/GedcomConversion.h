#pragma once

#include "gedcom/report/GedReport.h"

namespace lineforge
{

// Asks for a GEDCOM file and writes it anew as a text report beside it, family by family, showing the same lines in a
// window. Nothing goes into the branch. Whatever goes wrong on the way ends the report there and no other way than a
// good run ends. No errors.
void ConvertGedcom(const GedConversion& conversion);

// Closes what a conversion has open; what has been written stays. No errors.
void CloseConversionFiles(GedcomState& gedcom, ErrorState& errors);

// Puts the window of the conversion in the middle of the main window.
void CentreConversion(forms::Form11& form, const forms::Form1& around);

} // namespace lineforge
