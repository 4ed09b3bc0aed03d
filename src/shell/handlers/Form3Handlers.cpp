#include "forms/Form1.h"
#include "forms/Form3.h"
#include "map/subjects/SubjectPanel.h"
#include "output/BookmarkList.h"
#include "output/PrintCurrentRecord.h"
#include "output/PrintDatabase.h"
#include "output/PrintWindow.h"
#include "records/AddRecord.h"
#include "records/DeleteRecord.h"
#include "records/RecordClipboard.h"
#include "records/RecordForm.h"
#include "records/RecordPicture.h"
#include "records/RecordScanner.h"
#include "records/RecordSearch.h"
#include "records/RecordTransfer.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/Exit.h"
#include "shell/run/GalleryDoors.h"
#include "shell/run/Help.h"

namespace lineforge
{

namespace
{
// The boxes whose selection the Edit menu knows of, from number 2 on.
constexpr TextBox forms::Form3::*selectable[] = {
    &forms::Form3::Text2,  &forms::Form3::Text3,  &forms::Form3::Text4,  &forms::Form3::Text5,  &forms::Form3::Text6,
    &forms::Form3::Text7,  &forms::Form3::Text8,  &forms::Form3::Text9,  &forms::Form3::Text10, &forms::Form3::Text11,
    &forms::Form3::Text12, &forms::Form3::Text13, &forms::Form3::Text14, &forms::Form3::Text15, &forms::Form3::Text16,
    &forms::Form3::Text17, &forms::Form3::Text18, &forms::Form3::Text19,
};

void InstallSelection(Program& p, forms::Form3& form)
{
    int number = 2;
    for (TextBox forms::Form3::*member : selectable) {
        TextBox& box = form.*member;
        box.Click = [&p, &box, number] { RememberSelection(p.Record, box, number); };
        ++number;
    }
}

void InstallScanner(Program& p, forms::Form3& form)
{
    form.Picture1.Click = [&p] { StartScan(p, p.Scratch, ScanMode::FastForward); };
    form.Picture2.Click = [&p] { StartScan(p, p.Scratch, ScanMode::Forward); };
    form.Picture3.Click = [&p] { StopScan(p, p); };
    form.Picture4.Click = [&p] { StartScan(p, p.Scratch, ScanMode::Back); };
    form.Picture5.Click = [&p] { StartScan(p, p.Scratch, ScanMode::FastBack); };
    form.Timer1.Tick = [&p] { TickScan(p, p, p.Databases.Others()); };
}

void InstallPrinting(Program& p, forms::Form3& form)
{
    form.mnuAddPMark.Click = [&p] { AddBookmark(p.Bookmarks, p.Branch, p.Form3, p.Prompts); };
    form.mnuPrintSetup.Click = [&p] { p.Prompts.PickPrinter(); };
    form.mnuPrinForm.Click = [&p, &form] { PrintRecordWindow(form, p.Printer, p.Errors, p.Prompts); };
    form.mnuPrinRecord.Click = [&p] { PrintCurrentRecord(p); };
    form.mnuPrList.Click = [&p] { PrintBookmarks(p); };
    form.mnuClrList.Click = [&p] { ClearBookmarks(p.Bookmarks); };
    form.mnuPrinDatabase.Click = [&p] { PrintDatabase(p); };
}

void InstallEditing(Program& p, forms::Form3& form)
{
    form.mnuCut.Click = [&p, &form] { CutSelection(p.Record, form, p.Clipboard); };
    form.mnuCopy.Click = [&p] { CopySelection(p.Record, p.Clipboard); };
    form.mnuCopyRecToClip.Click = [&p] { CopyRecord(p.Record, p.Scratch, p.Form3, p.Clipboard); };
    form.mnuPaste.Click = [&p, &form] { PasteOverSelection(p.Record, form, p.Clipboard); };
    form.mnuSubPicture.Click = [&p] { ChangeSubjectPicture(p); };
    form.mnuAdd.Click = [&p] { AddRecord(p); };
    form.mnuDelete.Click = [&p] { DeleteRecord(p, p, p.Screen); };
    form.MnuRecTransfer.Click = [&p] { TransferRecord(p, p); };
}

void InstallSearches(Program& p, forms::Form3& form)
{
    form.mnuSearchDataRef.Click = [&p] { SearchByDataRef(p, p.Scratch); };
    form.mnuSearchSurName.Click = [&p] { SearchBySurname(p, p.Scratch, p.Loop); };
    form.mnuSearchBirthPlace.Click = [&p] { SearchByBirthPlace(p, p.Scratch, p.Loop); };
    form.mnuSearchWord.Click = [&p] { SearchByWord(p, p.Scratch, p.Loop); };
}

void InstallMenus(Program& p, forms::Form3& form)
{
    form.mnuPrint.Click = [&p] { OpenRecordMenu(p.Tools, p.Screen, p.Form3); };
    form.mnuEdit.Click = [&p] { OpenRecordMenu(p.Tools, p.Screen, p.Form3); };
    form.mnuSearch.Click = [&p] { OpenSearchMenu(p.Branch, p.Prompts, p.Tools, p.Screen, p.Form3); };
    InstallPrinting(p, form);
    InstallEditing(p, form);
    InstallSearches(p, form);
    form.mnuHelp.Click = [&p] { ShowRecordHelp(p.Prompts, p.Branch, p.Tools, p.Screen); };
    form.mnuExit.Click = [&p] { ExitFromRecords(p); };
}
} // namespace

void InstallForm3(Program& p, forms::Form3& form)
{
    BindSubjectLabels(*p.Form1, form);
    form.Load = [&p, &form] { LoadRecordForm(form, p.Screen, p.Form8, p.Branch); };
    // Unloaded, the form would take the open database with it: its frame leads back to the map.
    form.CloseByFrame = [&p] { ReturnToTree(p, p); };

    form.Command1.Click = [&p] { GoToGalleryFromRecords(p); };
    form.Command2.Click = [&p] { ReturnToTree(p, p); };
    form.Image1.Click = [&p] { EnlargeSubjectPicture(p, p.Form2); };
    form.Data1.Stepped = [&p] { FollowStep(p); };
    InstallSelection(p, form);
    InstallScanner(p, form);
    InstallMenus(p, form);
}

} // namespace lineforge
