#pragma once

#include "map/subjects/SubjectPanel.h"
#include "map/tools/ToolWork.h"

namespace lineforge
{

// Copies all fields of the current record but its number and its spouse's, and its subject picture, over another record
// that has a box, of this branch or of another one. The program then stays in the destination's branch, with its map.
// Errors of the record store while the destination is written; those of reading are passed over.
void TransferRecord(const ToolWork& work, const SubjectPanel& panel);

} // namespace lineforge
