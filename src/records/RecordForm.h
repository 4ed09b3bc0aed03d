#pragma once

#include "map/subjects/SubjectPanel.h"
#include "map/tools/ToolWork.h"

namespace lineforge
{

struct TextBox;

// The record form's load: its size and place, and the selected branch in its caption.
void LoadRecordForm(forms::Form3& form, const Screen& screen, Window<forms::Form8>& listOfBranches,
                    const BranchState& branch);

// Shows the form at the current record: the Records button and the View Records entry of the main window.
void ShowRecordForm(const ToolWork& work, const SubjectPictures& pictures);

// The Tree button: carries a changed forename to the record's box, keeps what was typed, and goes back to the map.
// Whatever fails on the way costs only its own step.
void ReturnToTree(const BoxWork& work, const SubjectPanel& panel);

// The first half of that, without ending a mapping. False when the database refuses to tell the current record.
[[nodiscard]] bool CarryRecordToMap(const BoxWork& work);

// Shows the subject picture by itself; a picture that isn't there is told, and empties the main window's panel.
void EnlargeSubjectPicture(const SubjectPanel& panel, Window<forms::Form2>& enlarged);

// A menu is opened whose commands work on the records by themselves: the data control's bar goes off.
void OpenRecordMenu(ToolState& tools, Screen& screen, Window<forms::Form3>& recordForm);

// The same for the searches, which are refused with a box while a record of another branch is shown.
void OpenSearchMenu(const BranchState& branch, Prompts& prompts, ToolState& tools, Screen& screen,
                    Window<forms::Form3>& recordForm);

// A click in one of `Text2` to `Text19`, which may have ended a selection: remembers what is selected there.
void RememberSelection(RecordState& record, const TextBox& box, int number);

} // namespace lineforge
