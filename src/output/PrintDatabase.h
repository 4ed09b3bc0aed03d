#pragma once

#include "output/RecordOutput.h"

namespace lineforge
{

// All records, two to a page, after a question. Ends on the first record. Errors are shown.
void PrintDatabase(const RecordOutput& output);

} // namespace lineforge
