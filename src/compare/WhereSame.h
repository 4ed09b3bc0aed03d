#pragma once

#include "compare/Comparison.h"

namespace lineforge
{

// Goes on to the next pair that agrees on the keys of `SearchMask`, case ignored, and stands on it; the pair at hand is
// the first to be looked at, unless all its fields have been walked. An empty key agrees with none. Each current record
// meets all compare records, in the order of the tables. The ends of the recordsets are told.
void SearchWhereSame(const Comparison& comparison);

} // namespace lineforge
