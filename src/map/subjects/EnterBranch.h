#pragma once

#include "map/items/MapWork.h"
#include "map/subjects/SubjectPanel.h"

namespace lineforge
{

struct Program;

// Clears the map in memory and on the screen; a record of another branch is none any more.
void PutMapAway(const BoxWork& work);

// Back from a record of a sibling branch, if one is shown: the open branch's first record is current and beside the
// map, without a word about a picture that isn't there.
void ReturnToOwnSubject(const MapWork& work, const SubjectPanel& panel);

// Puts the map away and goes over to the branch in that directory of the home: its database, first record current, and
// its map. The menus stay as they are. False, and a box, when the database can't be opened: name and directory are
// those of the branch all the same, and no records are open any more. Whatever fails after that costs only its own part
// of the map. What is typed is stored before, as by StoreTypedOrStay.
[[nodiscard]] bool EnterBranch(Program& p, const QString& name, const QString& directory);

// Stores what is typed, before the branch is left that it was typed for. What its database refuses is told and ends the
// command: the branch stays open, and the text in its box, to be stored when that can be done.
void StoreTypedOrStay(Window<forms::Form3>& recordForm, ErrorState& errors, Prompts& prompts);

// The current record, which must be there, beside the map, and the branch's name in the captions. A picture that isn't
// there is told.
void ShowFirstSubject(const BoxWork& work, const SubjectPanel& panel);

// Whether the branch that has been entered has no records: the panel beside the map is emptied then, and the user told.
[[nodiscard]] bool EmptySubjectIfNoRecords(Window<forms::Form1>& mainWindow, Window<forms::Form3>& recordForm,
                                           Prompts& prompts);

// Reads the map of the branch in `WorkDir` and draws it, as far as there is one; what is missing is told.
void DrawBranchMap(const MapWork& work);

} // namespace lineforge
