#pragma once

#include "compare/Comparison.h"

namespace lineforge
{

// All three go the way that the option buttons say, and work on the records at which the two recordsets stand. Where
// those that a command reads or writes aren't on show it shows them instead, see `IsSeen`.

// The field on show. What fails is told.
void CopyField(const Comparison& comparison);

// Every field of `CopyFieldList`, Null included. The number and the spouse's record stay.
void CopyAllFields(const Comparison& comparison);

// The record as a new one of the other branch, under the first "Z" number that is free; refused when the other branch
// has the record's number. Error 9 for a number of 100 or more behind a "Z", 13 for one that is none.
void AppendRecord(const Comparison& comparison);

} // namespace lineforge
