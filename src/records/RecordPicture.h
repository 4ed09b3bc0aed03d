#pragma once

#include "program/Program.h"

namespace lineforge
{

// The current record's subject picture on the record form, from that directory, which ends in its separator. One that
// isn't there, or is no picture, leaves none; nothing is told.
void ShowRecordPicture(Program& p, const QString& directory);

// From the branch's own directory.
void ShowRecordPicture(Program& p);

// The picture that `sPicFile` names, in the same way.
void ShowNamedPicture(Program& p);

// After something that moves the cursor and knows nothing of pictures: where the record form is on the screen, it shows
// the current record's. The names of record and picture at hand stay.
void FollowWithPicture(Program& p);

} // namespace lineforge
