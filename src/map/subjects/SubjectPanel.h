#pragma once

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "program/state/Program.h"

#include <initializer_list>

namespace lineforge
{

// The panel beside the map: the current record's picture and seven of its fields.

// Ties the labels to the record form's data control, so that they follow its current row.
void BindSubjectLabels(Program& p, forms::Form3& record);

// Copies the record form's boxes into the labels, and the record's number into the frame's caption.
void FillSubjectLabels(Program& p);

// Empties those labels; which ones, and what the frame then says, differs from command to command.
void EmptySubjectLabels(Program& p, std::initializer_list<Label forms::Form1::*> labels, const QString& frame);

// The subject picture of the record in `sPicFile`. Error 53 or 481 when it can't be loaded; the panel then keeps what
// it shows.
void LoadSubjectPicture(Program& p, Image& target);

// The picture in that file; none where it can't be loaded, which is no error of the command's.
QImage PictureOrNone(Program& p, const QString& file);

// The subject picture beside the map; false, and no picture there, when it can't be loaded.
bool ShowSubjectPicture(Program& p);

// The current record beside the map: picture, labels, number. A picture that isn't there empties the panel's and is
// told.
void ShowRecordOnMap(Program& p);

// The labels go with the cursor wherever a command, a search or the scanner takes it. Once they show another record
// than the frame names, number and picture go along. The map itself, with its marker, stays as it was: it follows those
// who ask for it. Reads nothing but what is shown.
void FollowSubject(Program& p);

// In the midst of a command, whose cursor may still be on its way: they just go.
void PartFromFormerSubject(Program& p);

// Tells that the picture of `sPicFile` isn't there.
void TellPictureMissing(Program& p);

} // namespace lineforge
