#include "records/RecordForm.h"

#include "forms/Form1.h"
#include "forms/Form2.h"
#include "forms/Form3.h"
#include "forms/Form8.h"
#include "map/items/BoxCaptions.h"
#include "map/items/CurrentBox.h"
#include "map/items/MapFile.h"
#include "map/items/MapItems.h"
#include "map/subjects/SubjectPanel.h"
#include "map/tools/LeaveTools.h"
#include "map/tools/ToolImages.h"
#include "platform/base/Text.h"
#include "platform/store/Fields.h"
#include "program/branch/ComeBackAfterwards.h"
#include "program/branch/SiblingBranch.h"
#include "program/state/Program.h"
#include "program/ui/BranchUi.h"
#include "records/RecordPicture.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
void RenameBoxOfRecord(Program& p, const QString& forename)
{
    if (const int row = RowOfRecord(p.Map, Records(p.Form3).Value(Field::File)); row <= LastFiledBox)
        RenameBox(p, row, forename);
}

// A record without a box would be printed wherever the last one was, in somebody else's box maybe.
void CaptionBoxOfRecord(Program& p)
{
    const int row = RowOfRecord(p.Map, Records(p.Form3).Value(Field::File));
    if (row > LastFiledBox)
        return;
    TakeBoxPosition(p, row);
    DrawRecordInBox(p, MapOnScreen(p));
    RenameBox(p, row, Records(p.Form3).Text(Field::Forename));
}

// What is being drawn with the tools is saved when they are closed, or not at all.
QString ListOfBoxesToSave(Program& p)
{
    return AreToolsShown(p)
               ? ListWithForename(p.Map.sBoxesText, Records(p.Form3).Text(Field::File), p.Form3->Text3.Text)
               : ListOfBoxes(p.Map);
}

// A forename changed only in its letters' case counts as unchanged.
void CarryForenameToMap(Program& p)
{
    if (SameText(p.Form3->Text3.Text.value(), p.Record.sShownName))
        return;
    p.Errors.Ignoring([&] { RenameBoxOfRecord(p, p.Form3->Text3.Text); });
    p.Errors.Ignoring([&] { p.Map.sBoxesText = ListOfBoxesToSave(p); });
}

// The boxes may still have to follow the last move. Where the database refuses that they show another record, whose
// texts must be carried nowhere.
bool BoxesAreCurrent(Program& p)
{
    bool areCurrent = false;
    p.Errors.Ignoring([&] {
        p.Form3->Data1.Settle();
        areCurrent = true;
    });
    return areCurrent;
}

void FinishMapping(Program& p)
{
    if (p.Tools.MapCursorMode != MapCursor::Mapping)
        return;
    p.Errors.Ignoring([&] { Records(p.Form3).Put(Field::Forename, p.Form3->Text3.Text.value()); });
    p.Errors.Ignoring([&] { KeepPosition(p.Record, Records(p.Form3)); });
    p.Errors.Ignoring([&] { Records(p.Form3).Update(); });
    p.Errors.Ignoring([&] { ComeBack(p.Record, p.Form3); });
    p.Errors.Ignoring([&] { CaptionBoxOfRecord(p); });
    p.Tools.MapCursorMode = MapCursor::Normal;
}

void KeepGender(Program& p)
{
    const QString typed = p.Form3->Text23.Text;
    bool isChanged = false;
    p.Errors.Ignoring([&] { isChanged = !SameText(Records(p.Form3).Text(Field::Gender), typed); });
    if (!isChanged)
        return;
    p.Errors.Ignoring([&] { Records(p.Form3).Edit(); });
    p.Errors.Ignoring([&] { Records(p.Form3).Put(Field::Gender, typed); });
    p.Errors.Ignoring([&] { Records(p.Form3).Update(); });
    p.Errors.Ignoring([&] { MarkCurrentBox(p); });
}
} // namespace

void LoadRecordForm(forms::Form3& form, const Screen& screen, Window<forms::Form8>& listOfBranches,
                    const BranchState& branch)
{
    form.Width = screen.Width;
    form.Height = screen.Height - 400;
    form.Centre(screen.Area(), 200);
    form.Caption = listOfBranches->List1.Text() + u" Ancestral Records.";
    // A backup makes the form anew on whatever record is shown.
    if (branch.IsSiblingShown())
        DisableTransport(form);
}

void ShowRecordForm(Program& p)
{
    LeaveToolsAtDoor(p);
    if (TellIfNoBranch(p.Branch, p.Form3, p.Prompts))
        return;
    SetPictureName(p.Record, *p.Form3);
    forms::Form3& form = *p.Form3;
    ShowNamedPicture(p);
    p.Record.sShownName = form.Text3.Text;
    form.Show();
    ClearMapCursor(p.Tools, p.Screen);
    p.Screen.Pointer = MousePointer::Default;
}

bool CarryRecordToMap(Program& p)
{
    if (!BoxesAreCurrent(p))
        return false;
    CarryForenameToMap(p);
    KeepGender(p);
    return true;
}

void ReturnToTree(Program& p)
{
    const bool areCurrent = BoxesAreCurrent(p);
    if (areCurrent)
        CarryForenameToMap(p);
    FinishMapping(p);
    if (areCurrent)
        KeepGender(p);
    p.Errors.Ignoring([&] { ShowRecordOnMap(p); });
    if (p.Gallery.FirstShow == 1)
        p.Errors.Ignoring([&] { MarkCurrentBox(p); });
    p.Form1->Show();
    p.Form3->Hide();
}

void EnlargeSubjectPicture(Program& p)
{
    const forms::Form3& record = *p.Form3;
    SetPictureName(p.Record, *p.Form3);
    p.Form2->Caption =
        record.Label25.Caption.value() + u"     " + record.Text3.Text.value() + u"  " + record.Text2.Text.value();
    try {
        LoadSubjectPicture(p, p.Form2->Image1);
        p.Form2->Show();
    } catch (const RuntimeError&) {
        // KEPT(RecordFormTest.PictureClickWithoutPicture_IsTold_AndEmptiesTheMapsPanel): the panel of the main window
        // is emptied, not the window that was to show the picture.
        // Mended, the panel would keep its picture.
        p.Form1->Image1.Picture = QImage();
        TellPictureMissing(p.Record, p.Prompts);
    }
}

void OpenRecordMenu(ToolState& tools, Screen& screen, Window<forms::Form3>& recordForm)
{
    ClearMapCursor(tools, screen);
    recordForm->Data1.Enabled = false;
}

void OpenSearchMenu(const BranchState& branch, Prompts& prompts, ToolState& tools, Screen& screen,
                    Window<forms::Form3>& recordForm)
{
    if (!TellIfAlternate(branch, prompts, u"Search Alternate Tree Branch Records."_s,
                         u"This Record is from another Tree Branch. You must open \n"
                         u"that Tree Branch to Search the Records of the Database. "_s))
        OpenRecordMenu(tools, screen, recordForm);
}

void RememberSelection(RecordState& record, const TextBox& box, int number)
{
    record.sClipText = box.SelText;
    record.ClipSource = number;
}

} // namespace lineforge
