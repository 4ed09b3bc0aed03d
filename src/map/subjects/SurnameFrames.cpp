#include "map/subjects/SurnameFrames.h"

#include "forms/Form1.h"
#include "map/items/CurrentBox.h"
#include "platform/store/Fields.h"
#include "program/branch/ComeBackAfterwards.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int frameOffset = 40; // twips left of the box and above it
const QString frames = u"The frames of a surname's line"_s;

void RemoveFrames(const MapPicture& shown)
{
    Concerning(frames, [&shown] {
        for (int index = 1; index <= shown.Map.MarkCount; ++index)
            shown.Form1->Shape2.Unload(index);
    });
    // KEPT(LineageMarksTest.SecondClearInARow_IsRefused): the count stays, so that a second clearing in a row asks for
    // frames that are gone.
    // Mended, that would do nothing, where it ends the program now.
}

bool IsOfLine(const Recordset& record, const QString& surname)
{
    return record.FieldIs(Field::Surname, surname) && record.FieldIs(Field::Gender, u"Male"_s);
}

void AddFrame(const MapPicture& shown, const MapMouseState& mouse)
{
    forms::Form1& form = *shown.Form1;
    form.Picture1.Mode = DrawMode::Copy;
    form.Picture1.DrawWidth = 1;
    shown.Map.MarkCount += 1;
    Shape& frame = Concerning(frames, [&]() -> Shape& { return form.Shape2.Load(shown.Map.MarkCount); });
    frame.Move({mouse.BoxX - frameOffset, mouse.BoxY - frameOffset});
    frame.Visible = true;
}

// A record without a box gets its frame where the last box was found. Everything is asked for afresh at each step:
// while events are served the cursor can move, the record be changed, or the branch closed, which ends it.
void FrameLine(const BoxWork& work, EventLoop& loop, const QString& surname)
{
    Records(work.Form3).MoveFirst();
    while (IsBranchOpen(work.Branch, work.Form3) && !Records(work.Form3).Eof()) {
        if (IsOfLine(Records(work.Form3), surname)) {
            FindBoxOfRecord(work);
            if (work.Mouse.BoxY == 0 && work.Mouse.BoxX != 0) {
                loop.DoEvents();
                continue;
            }
            AddFrame(work, work.Mouse);
        }
        Records(work.Form3).MoveNext();
    }
}
} // namespace

void LineageView(const BoxWork& work, Prompts& prompts, EventLoop& loop)
{
    if (work.Tools.ToolMode == 0) {
        RemoveFrames(work);
        return;
    }
    const QString surname = work.Form1->Text1.Text;
    if (surname.isEmpty()) {
        prompts.MsgBox(u"Lineage View"_s, u"Enter Surname for view."_s, Buttons::Information);
        return;
    }
    work.Map.MarkCount = 0;
    if (Records(work.Form3).IsEmpty()) {
        TellNoRecords(prompts);
        return;
    }
    KeepPosition(work.Record, Records(work.Form3));
    FrameLine(work, loop, surname);
    if (IsBranchOpen(work.Branch, work.Form3))
        ComeBack(work.Record, work.Form3);
}

void ViewLineage(const BoxWork& work, Prompts& prompts, EventLoop& loop)
{
    if (TellIfNoBranch(work.Branch, work.Form3, prompts))
        return;
    work.Tools.ToolMode = 1;
    LineageView(work, prompts, loop);
}

void ClearLineage(const BoxWork& work, Prompts& prompts, EventLoop& loop)
{
    if (TellIfNoBranch(work.Branch, work.Form3, prompts))
        return;
    work.Tools.ToolMode = 0;
    LineageView(work, prompts, loop);
}

} // namespace lineforge
