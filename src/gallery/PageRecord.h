#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// Whether the page on show is that of the record form's record: behind the window the cursor may have gone on.
bool IsPageOfRecord(Program& p);

// Keeps the names of the page's record, which the captions tell, as long as the record form shows them.
void TakePageNames(Program& p);

} // namespace lineforge
