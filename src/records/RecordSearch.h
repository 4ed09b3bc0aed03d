#pragma once

#include "program/Program.h"

namespace lineforge
{

// The four searches of the record form. Each asks for a text, walks all records from the first, case ignored, and
// leaves the cursor on a hit, or behind the last record. The map isn't told.
void SearchByDataRef(Program& p);

// With wildcards; each hit asks whether to go on.
void SearchBySurname(Program& p);
void SearchByBirthPlace(Program& p);
void SearchByWord(Program& p);

// Back to the first record, with its picture.
void ShowFirstRecord(Program& p);

} // namespace lineforge
