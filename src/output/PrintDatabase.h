#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// All records, two to a page, after a question. Ends on the first record. Errors are shown.
void PrintDatabase(Program& p);

} // namespace lineforge
