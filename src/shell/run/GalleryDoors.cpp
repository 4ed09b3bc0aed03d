#include "shell/run/GalleryDoors.h"

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "forms/Form5.h"
#include "gallery/GalleryItem.h"
#include "gallery/GalleryPage.h"
#include "gallery/PageRecord.h"
#include "map/items/CurrentBox.h"
#include "map/subjects/SubjectPanel.h"
#include "map/tools/LeaveTools.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/BranchUi.h"
#include "records/RecordForm.h"
#include "records/RecordPicture.h"

namespace lineforge
{

namespace
{
// A search moves the cursor without asking for a new page; a page of another record's files, or of another branch's,
// must not be taken for this one's.
bool NeedsPage(Program& p)
{
    return p.Gallery.WantsPage() || !IsPageOfRecord(p.Gallery, p.Branch, p.Form3);
}

void ShowGallery(Program& p)
{
    if (NeedsPage(p))
        BuildGalleryPage(p);
    else
        p.Form5->Show();
}

// While the page was built the user may have left it for this very window.
void HideBehindGallery(Program& p, Form& form)
{
    if (p.Form5->Visible)
        form.Hide();
    p.Screen.Pointer = MousePointer::Arrow;
}
} // namespace

void GoToGalleryFromMap(Program& p)
{
    LeaveToolsAtDoor(p);
    if (TellIfNoBranch(p.Branch, p.Form3, p.Prompts))
        return;
    ClearMapCursor(p.Tools, p.Screen);
    p.Screen.Pointer = MousePointer::Hourglass;
    ShowGallery(p);
    p.Record.sShownName = p.Form3->Text3.Text;
    HideBehindGallery(p, *p.Form1);
}

void GoToGalleryFromRecords(Program& p)
{
    if (p.Tools.MapCursorMode == MapCursor::Mapping)
        return;
    const bool isKnown = CarryRecordToMap(p);
    p.Errors.Ignoring([&] { Records(p.Form3).Update(); });
    p.Errors.Ignoring([&] { ShowRecordOnMap(p); });
    if (isKnown && NeedsPage(p))
        p.Screen.Pointer = MousePointer::Hourglass;
    if (p.Gallery.WantsPage())
        p.Errors.Ignoring([&] { MarkCurrentBox(p); });
    // A record that can't be told has no page; the window keeps the one that it has.
    if (isKnown)
        ShowGallery(p);
    else
        p.Form5->Show();
    HideBehindGallery(p, *p.Form3);
}

void LeaveGalleryForTree(Program& p)
{
    CancelDeletion(p.Scratch);
    p.Form1->Show();
    p.Form5->Hide();
}

void LeaveGalleryForRecords(Program& p)
{
    forms::Form3& form = *p.Form3;
    // An export has emptied it. In a branch without records nobody has a picture to be named.
    if (p.Record.sPicFile.isEmpty() && !form.Label25.Caption.value().isEmpty())
        SetPictureName(p.Record, *p.Form3);
    ShowNamedPicture(p);
    form.Show();
    p.Form5->Hide();
    if (p.Branch.IsSiblingShown())
        for (Button forms::Form3::*transport : forms::Form3::Transport)
            (form.*transport).Visible = false;
    CancelDeletion(p.Scratch);
}

} // namespace lineforge
