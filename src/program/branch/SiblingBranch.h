#pragma once

#include "program/branch/BranchAccess.h"

namespace lineforge
{

// While the record shown comes from a sibling branch the program's directories point there, and the saved ones hold
// those of the branch whose map is on the screen.

// Exchanges `WorkDir` with `WorkDirSaved` and `HomeDir` with `HomeDirSaved`.
void SwapBranchDirs(BranchState& branch);

// Whether the database of the sibling branch of that letter is there; shows a box with its path when it isn't. One of
// an older installation is taken; shows the box of a refused opening when it can't be.
[[nodiscard]] bool RequireSibling(const BranchAccess& access, QStringView letter);

// Takes the sibling's database if it is one of an older installation. False, with the box of a refused opening, when it
// can't be taken; any other database is left to whoever opens it.
[[nodiscard]] bool TakeOldSibling(const BranchAccess& access, QStringView letter);

// Keeps the open branch's directories as the saved ones, before the program points elsewhere. From one sibling to
// another the way back still leads to the open branch.
void KeepOwnDirectories(BranchState& branch);

// The following leave the program pointed where it was when a database can't be opened.

// Points the whole program at the sibling branch of that letter; the map stays.
void SwitchToSibling(const BranchAccess& access, QStringView letter);

// The directories and the database of the branch whose map is shown; `UsingAlternate` stays.
void OpenOwnBranch(const BranchAccess& access);

// `SwapBranchDirs`, and the database of the branch that the directories are then of; `UsingAlternate` stays.
void OpenSwappedBranch(const BranchAccess& access);

// The scanner's buttons on the record form: a sibling's record stands alone, for its branch can't be walked.
void DisableTransport(forms::Form3& form);

// `UsingAlternate` back to 0: the record scanner walks the open branch again.
void EndAlternate(BranchState& branch, Window<forms::Form3>& recordForm);

// Back to the branch whose map is shown.
void ReturnFromSibling(const BranchAccess& access);

// Tells, while a record of another branch is shown, why a command refuses it; false when none is.
[[nodiscard]] bool TellIfAlternate(const BranchState& branch, Prompts& prompts, const QString& title,
                                   const QString& text);

} // namespace lineforge
