#pragma once

#include "output/RecordOutput.h"

namespace lineforge
{

// The list of records that are to be put out together, from several branches maybe. It lives in memory only, and is
// emptied by each output.

// Error 9 when the list is full.
void AddBookmark(BookmarkState& bookmarks, const BranchState& branch, Window<forms::Form3>& recordForm,
                 Prompts& prompts);
void ClearBookmarks(BookmarkState& bookmarks);

// To the printer, two records to a print job; the current record is current again afterwards. Error 482 is shown.
void PrintBookmarks(const RecordOutput& output);

// Puts out the records of the list in its order, to the printer or, when `OutputMode` says so, to the text file, which
// is then closed. A record that is gone is passed over. Goes back to the open branch first; ends on the first record.
void PutOutBookmarks(const RecordOutput& output);

} // namespace lineforge
