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
#include "program/ui/BranchUi.h"
#include "records/RecordPicture.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
void RenameBoxOfRecord(MapState& map, Window<forms::Form1>& mainWindow, Window<forms::Form3>& recordForm,
                       const QString& forename)
{
    if (const int row = RowOfRecord(map, Records(recordForm).Value(Field::File)); row <= LastFiledBox)
        RenameBox(map, *mainWindow, row, forename);
}

// A record without a box would be printed wherever the last one was, in somebody else's box maybe.
void CaptionBoxOfRecord(const BoxWork& work)
{
    const int row = RowOfRecord(work.Map, Records(work.Form3).Value(Field::File));
    if (row > LastFiledBox)
        return;
    TakeBoxPosition(work.Mouse, work.Map, row);
    DrawRecordInBox(work, MapOnScreen(work.Map, *work.Form1));
    RenameBox(work.Map, *work.Form1, row, Records(work.Form3).Text(Field::Forename));
}

// What is being drawn with the tools is saved when they are closed, or not at all.
QString ListOfBoxesToSave(const BoxWork& work)
{
    return AreToolsShown(*work.Form1)
               ? ListWithForename(work.Map.sBoxesText, Records(work.Form3).Text(Field::File), work.Form3->Text3.Text)
               : ListOfBoxes(work.Map);
}

// A forename changed only in its letters' case counts as unchanged.
void CarryForenameToMap(const BoxWork& work)
{
    if (SameText(work.Form3->Text3.Text.value(), work.Record.sShownName))
        return;
    work.Errors.Ignoring([&] { RenameBoxOfRecord(work.Map, work.Form1, work.Form3, work.Form3->Text3.Text); });
    work.Errors.Ignoring([&] { work.Map.sBoxesText = ListOfBoxesToSave(work); });
}

// The boxes may still have to follow the last move. Where the database refuses that they show another record, whose
// texts must be carried nowhere.
bool BoxesAreCurrent(ErrorState& errors, Window<forms::Form3>& recordForm)
{
    bool areCurrent = false;
    errors.Ignoring([&] {
        recordForm->Data1.Settle();
        areCurrent = true;
    });
    return areCurrent;
}

void FinishMapping(const BoxWork& work)
{
    if (work.Tools.MapCursorMode != MapCursor::Mapping)
        return;
    work.Errors.Ignoring([&] { Records(work.Form3).Put(Field::Forename, work.Form3->Text3.Text.value()); });
    work.Errors.Ignoring([&] { KeepPosition(work.Record, Records(work.Form3)); });
    work.Errors.Ignoring([&] { Records(work.Form3).Update(); });
    work.Errors.Ignoring([&] { ComeBack(work.Record, work.Form3); });
    work.Errors.Ignoring([&] { CaptionBoxOfRecord(work); });
    work.Tools.MapCursorMode = MapCursor::Normal;
}

void KeepGender(const BoxWork& work)
{
    const QString typed = work.Form3->Text23.Text;
    bool isChanged = false;
    work.Errors.Ignoring([&] { isChanged = !SameText(Records(work.Form3).Text(Field::Gender), typed); });
    if (!isChanged)
        return;
    work.Errors.Ignoring([&] { Records(work.Form3).Edit(); });
    work.Errors.Ignoring([&] { Records(work.Form3).Put(Field::Gender, typed); });
    work.Errors.Ignoring([&] { Records(work.Form3).Update(); });
    work.Errors.Ignoring([&] { MarkCurrentBox(work); });
}
} // namespace

void LoadRecordForm(forms::Form3& form, const Screen& screen, Window<forms::Form8>& listOfBranches,
                    const BranchState& branch)
{
    FillScreen(form, screen, 400);
    form.Caption = listOfBranches->List1.Text() + u" Ancestral Records.";
    // A backup makes the form anew on whatever record is shown.
    if (branch.IsSiblingShown())
        DisableTransport(form);
}

void ShowRecordForm(const ToolWork& work, const SubjectPictures& pictures)
{
    LeaveToolsAtDoor(work);
    if (TellIfNoBranch(work.Branch, work.Form3, work.Prompts))
        return;
    SetPictureName(work.Record, *work.Form3);
    forms::Form3& form = *work.Form3;
    ShowNamedPicture(pictures);
    work.Record.sShownName = form.Text3.Text;
    form.Show();
    ClearMapCursor(work.Tools, work.Screen);
    work.Screen.Pointer = MousePointer::Default;
}

bool CarryRecordToMap(const BoxWork& work)
{
    if (!BoxesAreCurrent(work.Errors, work.Form3))
        return false;
    CarryForenameToMap(work);
    KeepGender(work);
    return true;
}

void ReturnToTree(const BoxWork& work, const SubjectPanel& panel)
{
    const bool areCurrent = BoxesAreCurrent(work.Errors, work.Form3);
    if (areCurrent)
        CarryForenameToMap(work);
    FinishMapping(work);
    if (areCurrent)
        KeepGender(work);
    work.Errors.Ignoring([&] { ShowRecordOnMap(panel); });
    if (work.Gallery.WantsPage())
        work.Errors.Ignoring([&] { MarkCurrentBox(work); });
    work.Form1->Show();
    work.Form3->Hide();
}

void EnlargeSubjectPicture(const SubjectPanel& panel, Window<forms::Form2>& enlarged)
{
    const forms::Form3& record = *panel.Form3;
    SetPictureName(panel.Record, *panel.Form3);
    enlarged->Caption =
        record.Label25.Caption.value() + u"     " + record.Text3.Text.value() + u"  " + record.Text2.Text.value();
    try {
        LoadSubjectPicture(panel, enlarged->Image1);
        enlarged->Show();
    } catch (const RuntimeError&) {
        // KEPT(RecordFormTest.PictureClickWithoutPicture_IsTold_AndEmptiesTheMapsPanel): the panel of the main window
        // is emptied, not the window that was to show the picture.
        // Mended, the panel would keep its picture.
        panel.Form1->Image1.Picture = QImage();
        TellPictureMissing(panel.Record, panel.Prompts);
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
