#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// Tells that the record of another branch can't be compared; false while the open branch's own is shown.
bool TellIfComparesAlternate(Program& p);

// The main window's command: shows the window on the first record of the open branch. Refused with a box on the record
// of another branch, and on a branch without records.
void OpenComparison(Program& p);

// The main window's button: the window as it was left, with the record at which the cursor stands by then; opens it
// anew if it has been closed.
void ReturnToComparison(Program& p);

// The window's load.
void LoadComparison(Program& p);

// Asks for the branch to compare with, by the list of branches.
void ChooseCompareBranch(Program& p);

// The list of branches is no more to choose one for comparison.
void WithdrawCompareRequest(Program& p);

// The entry of the list has been chosen, with that name: opens its database beside the open one and shows the first
// pair. One that can't be opened is told, and leaves the window as it was; one without records is told.
void OpenCompareBranch(Program& p, const QString& name, const QString& entry);

// Back to the map; the window stays open behind it.
void LeaveComparison(Program& p);

// Closes the window and with it the branch that is compared.
void CloseComparison(Program& p);

} // namespace lineforge
