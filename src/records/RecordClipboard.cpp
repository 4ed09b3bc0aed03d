#include "records/RecordClipboard.h"

#include "forms/Form3.h"
#include "output/RecordReport.h"
#include "program/branch/WorkDatabase.h"

#include <array>

namespace lineforge
{

namespace
{
using forms::Form3;

// By their numbers, from 1. Numbers 1 and 20 to 22 are served here, although no click reports them.
constexpr std::array<TextBox Form3::*, 22> boxes{
    &Form3::Text1,  &Form3::Text2,  &Form3::Text3,  &Form3::Text4,  &Form3::Text5,  &Form3::Text6,
    &Form3::Text7,  &Form3::Text8,  &Form3::Text9,  &Form3::Text10, &Form3::Text11, &Form3::Text12,
    &Form3::Text13, &Form3::Text14, &Form3::Text15, &Form3::Text16, &Form3::Text17, &Form3::Text18,
    &Form3::Text19, &Form3::Text20, &Form3::Text21, &Form3::Text22};

void ReplaceInClickedBox(const RecordState& record, forms::Form3& form, const QString& text)
{
    const int number = record.ClipSource;
    if (number >= 1 && number <= static_cast<int>(boxes.size()))
        (form.*boxes[static_cast<std::size_t>(number - 1)]).ReplaceSelection(text);
}

void PutOnClipboard(const RecordState& record, Clipboard& clipboard)
{
    clipboard.Clear();
    clipboard.SetText(record.sClipText);
}
} // namespace

void CopySelection(const RecordState& record, Clipboard& clipboard)
{
    PutOnClipboard(record, clipboard);
}

void CutSelection(const RecordState& record, forms::Form3& form, Clipboard& clipboard)
{
    PutOnClipboard(record, clipboard);
    ReplaceInClickedBox(record, form, {});
}

void PasteOverSelection(const RecordState& record, forms::Form3& form, Clipboard& clipboard)
{
    if (clipboard.HasText())
        ReplaceInClickedBox(record, form, clipboard.GetText());
}

void CopyRecord(RecordState& record, ScratchState& scratch, Window<forms::Form3>& recordForm, Clipboard& clipboard)
{
    if (!Records(recordForm).HasRow())
        return;
    record.ClipSource = 0;
    record.sClipText = RecordAsText(recordForm, scratch);
    PutOnClipboard(record, clipboard);
}

} // namespace lineforge
