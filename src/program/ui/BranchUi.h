#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/machine/Platform.h"
#include "program/state/BranchState.h"
#include "program/state/RecordState.h"
#include "program/state/ToolState.h"
#include "program/state/Windows.h"

namespace lineforge
{

// What needs an open branch: off at the start. Nothing turns it off again, not even closing the branch.
void DisableBranchUI(forms::Form1& form);
void EnableBranchUI(forms::Form1& form);

// As wide as the screen and as high, less the spared twips, half of which it stands above the middle.
void FillScreen(Form& form, const Screen& screen, int spared);
// KEPT(GedcomFormTest.Window_IsAsWideAsTheScreen_AndSomewhatLessHigh): as large, but placed by the record form's size,
// not its own. Mended, the window of the GEDCOM file would have another `Top`, and stand where it stands on the screen.
void FillScreen(Form& form, const Screen& screen, Window<forms::Form3>& recordForm, int spared);

// Ends a pending mapping or re-positioning of a subject.
void ClearMapCursor(ToolState& tools, Screen& screen);

// `sCurFile` and `sPicFile` from the record form.
void SetPictureName(RecordState& record, const forms::Form3& form);

// Whether a branch is open, its records too: one whose database was refused is named, and no more.
bool IsBranchOpen(const BranchState& branch, Window<forms::Form3>& recordForm);

// Tells that no branch is open.
void TellNoBranch(Prompts& prompts);
// The same if none is; false when one is.
[[nodiscard]] bool TellIfNoBranch(const BranchState& branch, Window<forms::Form3>& recordForm, Prompts& prompts);

// Tells that the open database has no records.
void TellNoRecords(Prompts& prompts);

// Shows the last run-time error, if there is one, in a plain box.
void ReportError(const ErrorState& errors, Prompts& prompts);
// The same of an error that has just been met.
void ReportError(ErrorState& errors, Prompts& prompts, const RuntimeError& error);

} // namespace lineforge
