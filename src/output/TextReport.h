#pragma once

#include "output/RecordOutput.h"

namespace lineforge
{

// The open branch, or the list of bookmarks, as a plain text file in the branch directory. Both have the same name; the
// file before is kept as the previous generation. Errors of the disk; the old file then stays.
void WriteDatabaseText(const RecordOutput& output);
void WriteBookmarksText(const RecordOutput& output);

// Every record to the open text file, in storage order; ends on the first.
void WriteAllRecords(const RecordOutput& output);

} // namespace lineforge
