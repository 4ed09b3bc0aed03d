#pragma once

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "platform/base/RuntimeError.h"
#include "platform/drawing/PictureFile.h"
#include "platform/files/FileSystem.h"
#include "platform/machine/Prompts.h"
#include "program/state/BranchState.h"
#include "program/state/RecordState.h"
#include "program/state/Windows.h"

namespace lineforge
{

struct Program;

// What brings a subject's picture onto the record form.
struct SubjectPictures {
    SubjectPictures(Program& p);

    const BranchState& Branch;
    RecordState& Record;
    FileSystem& Files;
    PictureCache& Pictures;
    ErrorState& Errors;
    lineforge::Prompts& Prompts;
    Window<forms::Form3>& Form3;
};

// And beside the map.
struct SubjectPanel : SubjectPictures {
    SubjectPanel(Program& p);

    Window<forms::Form1>& Form1;
};

// The panel beside the map: the current record's picture and seven of its fields.

// Ties the labels to the record form's data control, so that they follow its current row.
void BindSubjectLabels(forms::Form1& shown, forms::Form3& record);

// Copies the record form's boxes into the labels, and the record's number into the frame's caption.
void FillSubjectLabels(Window<forms::Form1>& mainWindow, Window<forms::Form3>& recordForm);

// The commands that leave nobody in the panel.
enum class EmptiedBy { NewBranch, BranchWithoutRecords, CloseBranch, DeleteBranch };

// Empties the panel. Which labels keep their text, and what the frame then says, differs from command to command.
void EmptySubjectPanel(forms::Form1& form, EmptiedBy command);

// The subject picture of the record in `sPicFile`. Error 53 or 481 when it can't be loaded; the panel then keeps what
// it shows.
void LoadSubjectPicture(const SubjectPictures& pictures, Image& target);

// The picture in that file; none where it can't be loaded, which is no error of the command's.
[[nodiscard]] QImage PictureOrNone(PictureCache& pictures, const FileSystem& files, const QString& file);

// The subject picture beside the map; false, and no picture there, when it can't be loaded.
[[nodiscard]] bool ShowSubjectPicture(const SubjectPanel& panel);

// The current record beside the map: picture, labels, number. A picture that isn't there empties the panel's and is
// told.
void ShowRecordOnMap(const SubjectPanel& panel);

// The labels go with the cursor wherever a command, a search or the scanner takes it. Once they show another record
// than the frame names, number and picture go along. The map itself, with its marker, stays as it was: it follows those
// who ask for it. Reads nothing but what is shown.
void FollowSubject(const SubjectPanel& panel);

// In the midst of a command, whose cursor may still be on its way: they just go.
void PartFromFormerSubject(Window<forms::Form1>& mainWindow, Window<forms::Form3>& recordForm);

// Tells that the picture of `sPicFile` isn't there.
void TellPictureMissing(const RecordState& record, Prompts& prompts);

} // namespace lineforge
