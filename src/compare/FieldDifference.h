#pragma once

#include "program/Program.h"

#include <array>

namespace lineforge
{

// A field that the search for differences looks at. `Gender`, `WedDate`, `SpouseRec` and `File` are none, and Maiden
// stands twice; so it is meant to be.
struct ComparedField {
    QStringView Field;
    QStringView Caption;
    QStringView CompField; // what `sCompField` takes; three are no fields, so that they can't be copied singly
};
extern const std::array<ComparedField, 22> ComparedFields;

// Walks the fields of the pair at hand from `FieldStep` on and stops at the first that differs, case ignored; at the
// end of a pair that was searched for says so, else goes on with the next pair. The ends of the recordsets are told.
void FieldDifferenceSearch(Program& p);

// Both sides' records. Error 94 for a forename that is Null.
void ShowComparePair(Program& p);

} // namespace lineforge
