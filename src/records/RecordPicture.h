#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The current record's subject picture on the record form, from that directory, which ends in its separator. One that
// isn't there, or is no picture, leaves none; nothing is told.
void ShowRecordPicture(Program& p, const QString& directory);

// From the branch's own directory.
void ShowRecordPicture(Program& p);

// The picture that `sPicFile` names, in the same way.
void ShowNamedPicture(Program& p);

} // namespace lineforge
