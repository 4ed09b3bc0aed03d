#pragma once

#include "platform/machine/Printer.h"
#include "platform/store/Recordset.h"
#include "program/state/OutputState.h"
#include "program/state/ScratchState.h"
#include "program/state/Windows.h"

namespace lineforge
{

// The current record as a report, in three forms. Null is empty text. None of them moves the cursor but `PrintRecord`,
// and none does anything at `Eof`.
// KEPT(RecordReportFileTest.FullRecord_HasEveryFieldOnItsLine): the file has labels of its own, and the place of a
// wedding before its date.
// Mended, files would read otherwise than those written before.
// KEPT(RecordReportPaperTest.FullRecord_HasItsLinesInOrder_TheDateOfTheWeddingBeforeItsPlace): paper and clipboard have
// the date first.
// Mended, they would read otherwise than what has been printed before.

// Lines in the text file that is open for output.
void WriteRecordToFile(const Recordset& record, const OutputState& output, ScratchState& scratch);

// A block on the printer's page; it neither begins nor ends a page. Moves on to the next record unless `OutputMode`
// is 1. Error 482 without a printer.
void PrintRecord(Recordset& record, const OutputState& output, Printer& printer, ScratchState& scratch);

// Text for the clipboard, a line feed after every line. Needs a current record.
QString RecordAsText(Window<forms::Form3>& recordForm, ScratchState& scratch);

} // namespace lineforge
