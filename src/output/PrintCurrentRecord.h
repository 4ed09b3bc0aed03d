#pragma once

#include "output/RecordOutput.h"

namespace lineforge
{

// One record on a page of its own. Errors are shown.
void PrintCurrentRecord(const RecordOutput& output);

} // namespace lineforge
