#pragma once

#include "compare/Sides.h"

namespace lineforge
{

// Walks the fields of the pair at hand from `FieldStep` on and stops at the first that differs, case ignored; at the
// end of a pair that was searched for says so, else goes on with the next pair. The ends of the recordsets are told.
void FieldDifferenceSearch(const Comparison& comparison);

// The field of the table that such a caption names; empty when it names none.
QStringView FieldNamedBy(const QString& caption);

// Whether the frame of the side names the field that Cut, Paste and Copy a Field write: nothing is written to one that
// nobody sees. Before any has been chosen there is none to be taken for another.
bool IsFieldOnShow(const CompareState& state, const forms::Form6& form, const Side& side);

// Both sides' records. Error 94 for a forename that is Null.
void ShowComparePair(const ComparedSides& sides);

} // namespace lineforge
