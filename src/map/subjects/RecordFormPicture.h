#pragma once

#include "map/subjects/SubjectPanel.h"

#include <QImage>

namespace lineforge
{

// The subject picture on the record form goes with the record there, whatever has moved the cursor.

// The picture of the current record, whatever it shows; none leaves its place empty until another record is current.
void PutRecordPicture(const BranchState& branch, Window<forms::Form3>& recordForm, const QImage& picture);

// Where the record form on the screen shows another record than its picture was put there for, that one's takes the
// place. Reads nothing but what is shown.
void FollowWithRecordPicture(const SubjectPictures& pictures);

// In the midst of a command, whose cursor may still be on its way: the former one's just goes.
void PartFromFormerRecordPicture(const BranchState& branch, Window<forms::Form3>& recordForm);

} // namespace lineforge
