#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The current record as a report, in three forms that differ in wording and order on purpose. Null is empty text. None
// of them moves the cursor but `PrintRecord`, and none does anything at `Eof`.

// Lines in the text file that is open for output.
void WriteRecordToFile(Program& p);

// A block on the printer's page; it neither begins nor ends a page. Moves on to the next record unless `OutputMode`
// is 1. Error 482 without a printer.
void PrintRecord(Program& p);

// Text for the clipboard, a line feed after every line. Needs a current record.
QString RecordAsText(Program& p);

} // namespace lineforge
