#pragma once

#include "platform/canvas/PictureBox.h"
#include "program/branch/BranchAccess.h"
#include "program/state/MapState.h"

#include <vector>

namespace lineforge
{

// The boxes of the map for those who can't see it, in the order of the array: number and forename of whoever each
// holds, read afresh from the records, and its place as the coordinates beside the map tell it. Costs one pass over
// each database that the map shows people of. A database that can't be read costs its forenames.
std::vector<PicturePart> SpokenBoxes(const MapState& map, const BranchAccess& access);

} // namespace lineforge
