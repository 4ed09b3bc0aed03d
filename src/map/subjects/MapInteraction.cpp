#include "map/subjects/MapInteraction.h"

#include "forms/Form1.h"
#include "map/items/BoxCaptions.h"
#include "map/items/CurrentBox.h"
#include "map/items/HitBox.h"
#include "map/items/MapFile.h"
#include "map/subjects/SubjectMapping.h"
#include "map/subjects/SubjectPanel.h"
#include "platform/base/Text.h"
#include "platform/store/Fields.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/ComeBackAfterwards.h"
#include "program/branch/SiblingBranch.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
void Tell(Prompts& prompts, const QString& title, const QString& text)
{
    prompts.MsgBox(title, text, Buttons::Information);
}

bool IsTransferPending(const ToolState& tools, const Screen& screen)
{
    return tools.MapCursorMode == MapCursor::Repositioning && screen.Pointer == MousePointer::Cross;
}

// Puts the current record into the box that was pressed, in the place of whatever it holds, and takes it out of its old
// one.
void MoveLinkToPressedBox(const BoxWork& work)
{
    const QString file = Records(work.Form3).Text(Field::File);
    if (work.Branch.IsSiblingShown())
        EraseSiblingsBox(work, file);
    else
        EraseBoxCaption(work);
    HitBox(work.Map, work.Mouse);
    TieBox(work.Map, *work.Form1, work.Mouse.BoxIdx, file, Records(work.Form3).Text(Field::Forename));
}

// Writes the boxes to the map's own branch although a record of another one is shown. Leaves the other branch opened
// afresh, on the same record.
void SaveBoxesOfOwnBranch(const MapWork& work)
{
    const QString file = Records(work.Form3).Text(Field::File);
    OpenSwappedBranch(work);
    work.Branch.UsingAlternate = 0;
    SaveBoxes(work.Map, work.Branch, work.Files);
    auto stays = qScopeGuard([&work] { EndAlternate(work.Branch, work.Form3); });
    OpenSwappedBranch(work);
    stays.dismiss();
    work.Branch.UsingAlternate = 1;
    Records(work.Form3).Seek(Field::File, file);
}

// False when there is no record to be transferred, or none any more: the cursor may have gone behind the last one.
// Beside all boxes, or on one that isn't saved, the transfer waits for a better double click, with its cross and the
// old box.
bool FinishTransfer(const MappingWork& work)
{
    if (!Records(work.Form3).HasRow()) {
        if (Records(work.Form3).IsEmpty())
            TellNoRecords(work.Prompts);
        ClearMapCursor(work.Tools, work.Screen);
        return false;
    }
    if (const std::optional<int> row = PressedRow(work.Map, work.Mouse); !row || *row > LastFiledBox)
        return false;
    if (work.Branch.IsSiblingShown()) {
        work.Record.sAltName = Records(work.Form3).Text(Field::Forename);
        MoveLinkToPressedBox(work);
        TakeBoxPosition(work.Mouse, work.Map, work.Mouse.BoxIdx);
        DrawRecordInBox(work, MapOnScreen(work.Map, *work.Form1));
        SaveBoxesOfOwnBranch(work);
    } else {
        MoveLinkToPressedBox(work);
        DrawRecordInBox(work, MapOnScreen(work.Map, *work.Form1));
        SaveBoxes(work.Map, work.Branch, work.Files);
    }
    ClearMapCursor(work.Tools, work.Screen);
    return true;
}

// The number in the box that was pressed; empty off all boxes.
QString PressedNumber(const MapState& map, MapMouseState& mouse)
{
    mouse.BoxX = mouse.BoxLeft;
    mouse.BoxY = mouse.BoxTop;
    HitBox(map, mouse);
    const bool isHit = map.SBoxes != 0 && mouse.BoxMiss == 0;
    return isHit ? map.BoxArr[mouse.BoxIdx][BoxColumn::File].Text() : QString();
}

// Whoever is current next is of another branch, where the same number may be another person's.
void LeaveSubject(forms::Form1& form)
{
    form.Frame1.Caption = u"Ref  "_s;
}

// Points the program at the branch that the number belongs to; false, and a box, when that isn't there.
bool GoToBranchOf(const MapWork& work, const QString& file)
{
    const QString letter = file.first(1);
    // A deleted branch has no siblings: whoever asks fails at its records.
    if (work.Branch.WorkDir.isEmpty() || SameText(letter, BranchLetter(work.Branch.WorkDir)))
        return true;
    if (!RequireSibling(work, letter))
        return false;
    SwitchToSibling(work, letter);
    LeaveSubject(*work.Form1);
    return true;
}

// Remembers where the cursor stands; false, and a box, when the branch has no records.
bool KeepPositionInBranch(const BranchRecords& records, Prompts& prompts)
{
    if (Records(records.Form3).IsEmpty()) {
        Tell(prompts, u"Database Empty"_s, u"This Tree Branch has no records to access"_s);
        return false;
    }
    KeepPosition(records.Record, Records(records.Form3));
    return true;
}

// Stands on the record; false, and a box, when there is none. The switch of branch stays.
bool FindPressedRecord(const BranchRecords& records, Prompts& prompts, const QString& file)
{
    if (Records(records.Form3).Seek(Field::File, file))
        return true;
    Tell(prompts, u"Database Searched"_s, u"No File data found"_s);
    ComeBack(records.Record, records.Form3);
    return false;
}

// Ties the pressed box to a record, or asks when it has one. An empty box belongs to no other branch.
void MapPressedBox(const MappingWork& work, const QString& file)
{
    const bool isEmptyBox = file.startsWith(u'0');
    if (!isEmptyBox && (!GoToBranchOf(work, file) || !KeepPositionInBranch(work, work.Prompts)))
        return;
    if (Records(work.Form3).Seek(Field::File, file))
        AskSubjectPicture(work);
    else
        MapNewSubject(work);
}

// A record without a gender leaves the marker where the last subject's was; so does one that is gone meanwhile.
void MarkSubject(const MappingWork& work)
{
    if (!Records(work.Form3).HasRow() || Records(work.Form3).Text(Field::Gender).isEmpty())
        return;
    MarkCurrentBox(work);
    // The first double click of a re-positioning has chosen the old place; the cross waits for the new one.
    if (work.Tools.MapCursorMode == MapCursor::Repositioning)
        work.Screen.Pointer = MousePointer::Cross;
}

void ShowPressedSubject(const MappingWork& work, const SubjectPanel& panel, const QString& file)
{
    const bool isEmptyBox = file == u"0" && work.Tools.MapCursorMode == MapCursor::Normal;
    if (isEmptyBox || !GoToBranchOf(work, file) || !KeepPositionInBranch(work, work.Prompts) ||
        !FindPressedRecord(work, work.Prompts, file))
        return;
    ShowRecordOnMap(panel);
    work.Form1->Image1.Visible = true;
    MarkSubject(work);
}
} // namespace

void AnswerPress(const MapState& map, MapMouseState& mouse, Window<forms::Form1>& mainWindow, EventLoop& loop)
{
    if (map.SBoxes == 0)
        return;
    mouse.BoxMiss = 0;
    if (PressedRow(map, mouse)) {
        mainWindow->MMControl1.Command(u"Sound");
        loop.DoEvents();
    }
}

void DoubleClickOnMap(const MappingWork& work, const SubjectPanel& panel)
{
    if (work.Tools.ToolMode == ToolsOpen)
        return;
    if (IsTransferPending(work.Tools, work.Screen)) {
        if (FinishTransfer(work))
            MarkSubject(work);
        return;
    }
    if (work.Branch.IsSiblingShown()) {
        ReturnFromSibling(work);
        LeaveSubject(*work.Form1);
    }
    if (TellIfNoBranch(work.Branch, work.Form3, work.Prompts))
        return;

    const bool isMapping = work.Tools.MapCursorMode == MapCursor::Mapping;
    if (isMapping && Records(work.Form3).IsEmpty()) {
        // Wherever the click was.
        MapNewSubject(work);
        return;
    }
    // On the way there a box may open, under which the scanner puts its own record at hand.
    const QString file = PressedNumber(work.Map, work.Mouse);
    work.Record.sCurFile = file;
    if (file.isEmpty())
        return;
    if (isMapping)
        MapPressedBox(work, file);
    else
        ShowPressedSubject(work, panel, file);
}

} // namespace lineforge
