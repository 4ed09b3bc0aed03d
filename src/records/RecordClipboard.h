#pragma once

#include "platform/machine/Clipboard.h"
#include "program/state/RecordState.h"
#include "program/state/ScratchState.h"
#include "program/state/Windows.h"

namespace lineforge
{

// The Edit menu of the record form. It knows the box that was last clicked, and what was selected in it at that moment;
// what is replaced is what is selected in it now, or the caret's place.
void CopySelection(const RecordState& record, Clipboard& clipboard);
void CutSelection(const RecordState& record, forms::Form3& form, Clipboard& clipboard);
void PasteOverSelection(const RecordState& record, forms::Form3& form, Clipboard& clipboard);

// The whole record as text; the box that was clicked is forgotten.
void CopyRecord(RecordState& record, ScratchState& scratch, Window<forms::Form3>& recordForm, Clipboard& clipboard);

} // namespace lineforge
