#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// One record on a page of its own. Errors are shown.
void PrintCurrentRecord(Program& p);

} // namespace lineforge
