#pragma once

#include "program/state/LineageState.h"

namespace lineforge
{

// How the panel tells of a row of the lineage's table while it is being filled; the last three of its offspring are
// those of `tail`.
QString IndividualLine(const LineageState::Row& row, const LineageState::Row& tail);

// And how it lists the row in the end.
QString ListingLine(const LineageState::Row& row);

} // namespace lineforge
