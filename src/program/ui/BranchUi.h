#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// What needs an open branch: off at the start. Nothing turns it off again, not even closing the branch.
void DisableBranchUI(Program& p);
void EnableBranchUI(Program& p);

// As wide as the screen and as high, less the spared twips.
// KEPT(GedcomFormTest.Window_IsAsWideAsTheScreen_AndSomewhatLessHigh): placed by the record form's size, not its own.
// Mended, the window of the GEDCOM file would have another `Top`, and stand where it stands on the screen.
void FillScreen(Program& p, Form& form, int spared);

// Ends a pending mapping or re-positioning of a subject.
void ClearMapCursor(Program& p);

// `sCurFile` and `sPicFile` from the record form.
void SetPictureName(Program& p);

// Whether a branch is open, its records too: one whose database was refused is named, and no more.
bool IsBranchOpen(Program& p);

// Tells that no branch is open.
void TellNoBranch(Program& p);
// The same if none is; false when one is.
bool TellIfNoBranch(Program& p);

// Tells that the open database has no records.
void TellNoRecords(Program& p);

// Shows the last run-time error, if there is one, in a plain box.
void ReportError(Program& p);
// The same of an error that has just been met.
void ReportError(Program& p, const RuntimeError& error);

} // namespace lineforge
