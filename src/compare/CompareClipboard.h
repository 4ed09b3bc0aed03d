#pragma once

#include "compare/Comparison.h"

namespace lineforge
{

// A release of the mouse in `Text1` to `Text4`, told by its number: remembers what is selected there.
void RememberCompareSelection(CompareState& state, const forms::Form6& form, int number);

// The remembered text to the clipboard.
void CopyCompareSelection(const CompareState& state, Clipboard& clipboard);

// The same, and the whole box is emptied, with its field; neither before both sides show the records on which their
// cursors stand, see `IsSeen`. Errors of the database; 91 while no branch is compared, 3265 while no field of the table
// is shown.
void CutCompareField(const Comparison& comparison, Clipboard& clipboard);

// The clipboard's text in the place of the whole box and in its field, in the same way; nothing when it holds none, or
// no box has been clicked. Errors as of cutting.
void PasteCompareField(const Comparison& comparison, Clipboard& clipboard);

} // namespace lineforge
