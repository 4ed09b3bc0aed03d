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

void RemoveFrames(Program& p)
{
    Concerning(frames, [&p] {
        for (int index = 1; index <= p.Map.MarkCount; ++index)
            p.Form1->Shape2.Unload(index);
    });
    // KEPT(LineageMarksTest.SecondClearInARow_IsRefused): the count stays, so that a second clearing in a row asks for
    // frames that are gone.
    // Mended, that would do nothing, where it ends the program now.
}

bool IsOfLine(const Recordset& record, const QString& surname)
{
    return record.FieldIs(Field::Surname, surname) && record.FieldIs(Field::Gender, u"Male"_s);
}

void AddFrame(Program& p)
{
    forms::Form1& form = *p.Form1;
    form.Picture1.Mode = DrawMode::Copy;
    form.Picture1.DrawWidth = 1;
    p.Map.MarkCount += 1;
    Shape& frame = Concerning(frames, [&]() -> Shape& { return form.Shape2.Load(p.Map.MarkCount); });
    frame.Move({p.Mouse.BoxX - frameOffset, p.Mouse.BoxY - frameOffset});
    frame.Visible = true;
}

// A record without a box gets its frame where the last box was found. Everything is asked for afresh at each step:
// while events are served the cursor can move, the record be changed, or the branch closed, which ends it.
void FrameLine(Program& p, const QString& surname)
{
    Records(p.Form3).MoveFirst();
    while (IsBranchOpen(p.Branch, p.Form3) && !Records(p.Form3).Eof()) {
        if (IsOfLine(Records(p.Form3), surname)) {
            FindBoxOfRecord(p);
            if (p.Mouse.BoxY == 0 && p.Mouse.BoxX != 0) {
                p.Loop.DoEvents();
                continue;
            }
            AddFrame(p);
        }
        Records(p.Form3).MoveNext();
    }
}
} // namespace

void LineageView(Program& p)
{
    if (p.Tools.ToolMode == 0) {
        RemoveFrames(p);
        return;
    }
    const QString surname = p.Form1->Text1.Text;
    if (surname.isEmpty()) {
        p.Prompts.MsgBox(u"Lineage View"_s, u"Enter Surname for view."_s, Buttons::Information);
        return;
    }
    p.Map.MarkCount = 0;
    if (Records(p.Form3).IsEmpty()) {
        TellNoRecords(p.Prompts);
        return;
    }
    KeepPosition(p.Record, Records(p.Form3));
    FrameLine(p, surname);
    if (IsBranchOpen(p.Branch, p.Form3))
        ComeBack(p.Record, p.Form3);
}

void ViewLineage(Program& p)
{
    if (TellIfNoBranch(p.Branch, p.Form3, p.Prompts))
        return;
    p.Tools.ToolMode = 1;
    LineageView(p);
}

void ClearLineage(Program& p)
{
    if (TellIfNoBranch(p.Branch, p.Form3, p.Prompts))
        return;
    p.Tools.ToolMode = 0;
    LineageView(p);
}

} // namespace lineforge
