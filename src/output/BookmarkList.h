#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The list of records that are to be put out together, from several branches maybe. It lives in memory only, and is
// emptied by each output.

// Error 9 when the list is full.
void AddBookmark(Program& p);
void ClearBookmarks(Program& p);

// To the printer, two records to a print job; the current record is current again afterwards. Error 482 is shown.
void PrintBookmarks(Program& p);

// Puts out the records of the list in its order, to the printer or, when `OutputMode` says so, to the text file, which
// is then closed. A record that is gone is passed over. Goes back to the open branch first; ends on the first record.
void PutOutBookmarks(Program& p);

} // namespace lineforge
