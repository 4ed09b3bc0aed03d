#pragma once

#include "map/subjects/SubjectPanel.h"

namespace lineforge
{

// A new record without a box, numbered on from the last row of the table, with the blank portrait; it becomes current.
// Errors of the disk and of the record store.
void AddRecord(const SubjectPictures& pictures);

// Asks for a file that becomes the current record's subject picture, byte for byte, whatever it is. A refusal, a
// cancelled question included, ends it without a word.
void ChangeSubjectPicture(const SubjectPictures& pictures);

} // namespace lineforge
