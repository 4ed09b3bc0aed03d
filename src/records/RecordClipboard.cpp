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

void ReplaceInClickedBox(Program& p, const QString& text)
{
    const int number = p.Record.ClipSource;
    if (number >= 1 && number <= static_cast<int>(boxes.size()))
        ((*p.Form3).*boxes[static_cast<std::size_t>(number - 1)]).ReplaceSelection(text);
}

void PutOnClipboard(Program& p)
{
    p.Clipboard.Clear();
    p.Clipboard.SetText(p.Record.sClipText);
}
} // namespace

void CopySelection(Program& p)
{
    PutOnClipboard(p);
}

void CutSelection(Program& p)
{
    PutOnClipboard(p);
    ReplaceInClickedBox(p, {});
}

void PasteOverSelection(Program& p)
{
    if (p.Clipboard.HasText())
        ReplaceInClickedBox(p, p.Clipboard.GetText());
}

void CopyRecord(Program& p)
{
    if (!Records(p.Form3).HasRow())
        return;
    p.Record.ClipSource = 0;
    p.Record.sClipText = RecordAsText(p);
    PutOnClipboard(p);
}

} // namespace lineforge
