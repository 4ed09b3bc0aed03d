#pragma once

#include "compare/Comparison.h"
#include "program/branch/BranchAccess.h"

namespace lineforge
{

// Tells that the record of another branch can't be compared; false while the open branch's own is shown.
[[nodiscard]] bool TellIfComparesSibling(const BranchState& branch, Prompts& prompts);

// The main window's command: shows the window on the first record of the open branch. Refused with a box on the record
// of another branch, and on a branch without records.
void OpenComparison(const Comparison& comparison, Window<forms::Form1>& mainWindow);

// The main window's button: the window as it was left, with the record at which the cursor stands by then; opens it
// anew if it has been closed.
void ReturnToComparison(const Comparison& comparison, Window<forms::Form1>& mainWindow);

// The window's load.
void LoadComparison(const Comparison& comparison, const Screen& screen);

// Asks for the branch to compare with, by the list of branches.
void ChooseCompareBranch(CompareState& state, Window<forms::Form8>& listOfBranches);

// The list of branches is no more to choose one for comparison.
void WithdrawCompareRequest(CompareState& state);

// The entry of the list has been chosen, with that name: opens its database beside the open one and shows the first
// pair. One that can't be opened is told, and leaves the window as it was; one without records is told.
void OpenCompareBranch(const Comparison& comparison, const DatabaseOpening& opening, const QString& name,
                       const QString& entry);

// Back to the map; the window stays open behind it.
void LeaveComparison(forms::Form1& mainWindow);

// Closes the window and with it the branch that is compared.
void CloseComparison(const ComparedSides& sides, Window<forms::Form1>& mainWindow);

} // namespace lineforge
