#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The record form's load: its size and place, and the selected branch in its caption.
void LoadRecordForm(Program& p);

// Shows the form at the current record: the Records button and the View Records entry of the main window.
void ShowRecordForm(Program& p);

// The Tree button: carries a changed forename to the record's box, keeps what was typed, and goes back to the map.
// Whatever fails on the way costs only its own step.
void ReturnToTree(Program& p);

// The first half of that, without ending a mapping. False when the database refuses to tell the current record.
bool CarryRecordToMap(Program& p);

// Shows the subject picture by itself; a picture that isn't there is told, and empties the main window's panel.
void EnlargeSubjectPicture(Program& p);

// A menu is opened whose commands work on the records by themselves: the data control's bar goes off.
void OpenRecordMenu(Program& p);

// The same for the searches, which are refused with a box while a record of another branch is shown.
void OpenSearchMenu(Program& p);

// A click in one of `Text2` to `Text19`, which may have ended a selection: remembers what is selected there.
void RememberSelection(Program& p, const TextBox& box, int number);

} // namespace lineforge
