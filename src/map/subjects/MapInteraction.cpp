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
void Tell(Program& p, const QString& title, const QString& text)
{
    p.Prompts.MsgBox(title, text, Buttons::Information);
}

bool IsTransferPending(const Program& p)
{
    return p.Tools.MapCursorMode == MapCursor::Repositioning && p.Screen.Pointer == MousePointer::Cross;
}

// Puts the current record into the box that was pressed, in the place of whatever it holds, and takes it out of its old
// one.
void MoveLinkToPressedBox(Program& p)
{
    const QString file = Records(p.Form3).Text(Field::File);
    if (p.Branch.IsSiblingShown())
        EraseSiblingsBox(p, file);
    else
        EraseBoxCaption(p);
    HitBox(p);
    TieBox(p, p.Mouse.BoxIdx, file, Records(p.Form3).Text(Field::Forename));
}

// Writes the boxes to the map's own branch although a record of another one is shown. Leaves the other branch opened
// afresh, on the same record.
void SaveBoxesOfOwnBranch(Program& p)
{
    const QString file = Records(p.Form3).Text(Field::File);
    OpenSwappedBranch(p);
    p.Branch.UsingAlternate = 0;
    SaveBoxes(p);
    auto stays = qScopeGuard([&p] { EndAlternate(p.Branch, p.Form3); });
    OpenSwappedBranch(p);
    stays.dismiss();
    p.Branch.UsingAlternate = 1;
    Records(p.Form3).Seek(Field::File, file);
}

// False when there is no record to be transferred, or none any more: the cursor may have gone behind the last one.
// Beside all boxes, or on one that isn't saved, the transfer waits for a better double click, with its cross and the
// old box.
bool FinishTransfer(Program& p)
{
    if (!Records(p.Form3).HasRow()) {
        if (Records(p.Form3).IsEmpty())
            TellNoRecords(p.Prompts);
        ClearMapCursor(p.Tools, p.Screen);
        return false;
    }
    if (const std::optional<int> row = PressedRow(p); !row || *row > LastFiledBox)
        return false;
    if (p.Branch.IsSiblingShown()) {
        p.Record.sAltName = Records(p.Form3).Text(Field::Forename);
        MoveLinkToPressedBox(p);
        TakeBoxPosition(p, p.Mouse.BoxIdx);
        DrawRecordInBox(p, MapOnScreen(p));
        SaveBoxesOfOwnBranch(p);
    } else {
        MoveLinkToPressedBox(p);
        DrawRecordInBox(p, MapOnScreen(p));
        SaveBoxes(p);
    }
    ClearMapCursor(p.Tools, p.Screen);
    return true;
}

// The number in the box that was pressed; empty off all boxes.
QString PressedNumber(Program& p)
{
    p.Mouse.BoxX = p.Mouse.BoxLeft;
    p.Mouse.BoxY = p.Mouse.BoxTop;
    HitBox(p);
    const bool isHit = p.Map.SBoxes != 0 && p.Mouse.BoxMiss == 0;
    return isHit ? p.Map.BoxArr[p.Mouse.BoxIdx][BoxColumn::File].Text() : QString();
}

// Whoever is current next is of another branch, where the same number may be another person's.
void LeaveSubject(Program& p)
{
    p.Form1->Frame1.Caption = u"Ref  "_s;
}

// Points the program at the branch that the number belongs to; false, and a box, when that isn't there.
bool GoToBranchOf(Program& p, const QString& file)
{
    const QString letter = file.first(1);
    // A deleted branch has no siblings: whoever asks fails at its records.
    if (p.Branch.WorkDir.isEmpty() || SameText(letter, BranchLetter(p.Branch.WorkDir)))
        return true;
    if (!RequireSibling(p, letter))
        return false;
    SwitchToSibling(p, letter);
    LeaveSubject(p);
    return true;
}

// Remembers where the cursor stands; false, and a box, when the branch has no records.
bool KeepPositionInBranch(Program& p)
{
    if (Records(p.Form3).IsEmpty()) {
        Tell(p, u"Database Empty"_s, u"This Tree Branch has no records to access"_s);
        return false;
    }
    KeepPosition(p.Record, Records(p.Form3));
    return true;
}

// Stands on the record; false, and a box, when there is none. The switch of branch stays.
bool FindPressedRecord(Program& p, const QString& file)
{
    if (Records(p.Form3).Seek(Field::File, file))
        return true;
    Tell(p, u"Database Searched"_s, u"No File data found"_s);
    ComeBack(p.Record, p.Form3);
    return false;
}

// Ties the pressed box to a record, or asks when it has one. An empty box belongs to no other branch.
void MapPressedBox(Program& p, const QString& file)
{
    const bool isEmptyBox = file.startsWith(u'0');
    if (!isEmptyBox && (!GoToBranchOf(p, file) || !KeepPositionInBranch(p)))
        return;
    if (Records(p.Form3).Seek(Field::File, file))
        AskSubjectPicture(p);
    else
        MapNewSubject(p);
}

// A record without a gender leaves the marker where the last subject's was; so does one that is gone meanwhile.
void MarkSubject(Program& p)
{
    if (!Records(p.Form3).HasRow() || Records(p.Form3).Text(Field::Gender).isEmpty())
        return;
    MarkCurrentBox(p);
    // The first double click of a re-positioning has chosen the old place; the cross waits for the new one.
    if (p.Tools.MapCursorMode == MapCursor::Repositioning)
        p.Screen.Pointer = MousePointer::Cross;
}

void ShowPressedSubject(Program& p, const QString& file)
{
    const bool isEmptyBox = file == u"0" && p.Tools.MapCursorMode == MapCursor::Normal;
    if (isEmptyBox || !GoToBranchOf(p, file) || !KeepPositionInBranch(p) || !FindPressedRecord(p, file))
        return;
    ShowRecordOnMap(p);
    p.Form1->Image1.Visible = true;
    MarkSubject(p);
}
} // namespace

void AnswerPress(Program& p)
{
    if (p.Map.SBoxes == 0)
        return;
    p.Mouse.BoxMiss = 0;
    if (PressedRow(p)) {
        p.Form1->MMControl1.Command(u"Sound");
        p.Loop.DoEvents();
    }
}

void DoubleClickOnMap(Program& p)
{
    if (p.Tools.ToolMode == ToolsOpen)
        return;
    if (IsTransferPending(p)) {
        if (FinishTransfer(p))
            MarkSubject(p);
        return;
    }
    if (p.Branch.IsSiblingShown()) {
        ReturnFromSibling(p);
        LeaveSubject(p);
    }
    if (TellIfNoBranch(p.Branch, p.Form3, p.Prompts))
        return;

    const bool isMapping = p.Tools.MapCursorMode == MapCursor::Mapping;
    if (isMapping && Records(p.Form3).IsEmpty()) {
        // Wherever the click was.
        MapNewSubject(p);
        return;
    }
    // On the way there a box may open, under which the scanner puts its own record at hand.
    const QString file = PressedNumber(p);
    p.Record.sCurFile = file;
    if (file.isEmpty())
        return;
    if (isMapping)
        MapPressedBox(p, file);
    else
        ShowPressedSubject(p, file);
}

} // namespace lineforge
