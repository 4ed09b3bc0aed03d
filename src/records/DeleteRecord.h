#pragma once

#include "map/items/MapWork.h"
#include "map/subjects/SubjectPanel.h"

namespace lineforge
{

// Deletes the current record with its picture and gallery files, and empties its box; of a record of another branch
// only the box. After two questions, or one. Nothing without a current record. Ends on the first record of the open
// branch.
void DeleteRecord(const MapWork& work, const SubjectPictures& pictures, Screen& screen);

} // namespace lineforge
