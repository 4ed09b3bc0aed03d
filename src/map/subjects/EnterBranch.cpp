#include "map/subjects/EnterBranch.h"

#include "forms/Form1.h"
#include "forms/Form2.h"
#include "forms/Form3.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "map/items/CurrentBox.h"
#include "map/items/MapFile.h"
#include "map/items/MapItems.h"
#include "map/items/MapParse.h"
#include "map/subjects/SubjectPanel.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/EmptyTable.h"
#include "program/branch/OldDatabase.h"
#include "program/branch/SiblingBranch.h"
#include "program/branch/WorkDatabase.h"
#include "program/state/Program.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The program is named after another branch than the one whose records are open: any command would act on both. So the
// records go, with all windows that show them, as when a branch is closed.
void LetGoOfRecords(Program& p)
{
    p.Form2.Unload();
    p.Form3.Unload();
    p.Form5.Unload();
    p.Form6.Unload();
    // The gallery may have hidden it.
    p.Form1->Show();
}

bool OpenDatabase(Program& p, const QString& directory)
{
    p.Branch.WorkDir = p.Branch.HomeDir + directory;
    p.Branch.WorkDirLen = static_cast<int>(p.Branch.WorkDir.size());
    p.Branch.sDbaseName = DatabaseName(BranchLetter(p.Branch.WorkDir));
    const QString path = p.Branch.WorkDir + PathSeparator + p.Branch.sDbaseName;
    try {
        p.Files.ChDir(p.Branch.WorkDir);
        PointAtDatabase(p, path);
        return true;
    } catch (const RuntimeError& refusal) {
        LetGoOfRecords(p);
        TellDatabaseRefused(p, path, refusal);
        return false;
    }
}

// The current record beside the map and its marker, each as far as it can be had. False without a picture.
bool ShowSubject(const BoxWork& work, const SubjectPanel& panel)
{
    work.Errors.Ignoring([&] { SetPictureName(work.Record, *work.Form3); });
    const bool hasPicture = ShowSubjectPicture(panel);
    work.Errors.Ignoring([&] { MarkCurrentBox(work); });
    work.Errors.Ignoring([&] { FillSubjectLabels(work.Form1, work.Form3); });
    return hasPicture;
}
} // namespace

void PutMapAway(const BoxWork& work)
{
    ClearMapPicture(work.Map, *work.Form1);
    ResetMapFont(work.Form1->Picture1);
    ForgetMap(work.Map, work.Mouse, work.Tools);
    if (work.Branch.IsSiblingShown())
        EndAlternate(work.Branch, work.Form3);
}

void ReturnToOwnSubject(const MapWork& work, const SubjectPanel& panel)
{
    if (!work.Branch.IsSiblingShown())
        return;
    ReturnFromSibling(work);
    ShowSubject(work, panel);
}

void DrawBranchMap(const MapWork& work)
{
    work.Errors.Ignoring([&] {
        try {
            ReadMapFile(work.Map, work.Branch, work.Files, work.Prompts);
        } catch (const RuntimeError& refusal) {
            // A part of the map has come.
            if (refusal.Number == ErrorNumber::InputPastEnd)
                WarnOfFirstEmptyList(work.Map, work.Prompts);
            throw;
        }
    });
    ParseWhatIsThere(work);
}

void StoreTypedOrStay(Window<forms::Form3>& recordForm, ErrorState& errors, Prompts& prompts)
{
    try {
        StoreTyped(recordForm);
    } catch (RuntimeError& refusal) {
        ReportError(errors, prompts, refusal);
        refusal.IsTold = true;
        throw;
    }
}

bool EnterBranch(Program& p, const QString& name, const QString& directory)
{
    StoreTypedOrStay(p.Form3, p.Errors, p.Prompts);
    // Who doesn't wait for another program keeps the branch that he has.
    const auto database = ReachDatabase(p.Databases, p.Files, DatabasePath(p.Branch.HomeDir + directory));
    p.Branch.sBranchName = name;
    p.Form1->Shape1.Visible = false;
    PutMapAway(p);
    if (!OpenDatabase(p, directory))
        return false;
    p.Form6->Label2.Caption = name;
    DrawBranchMap(p);
    return true;
}

bool EmptySubjectIfNoRecords(Window<forms::Form1>& mainWindow, Window<forms::Form3>& recordForm, Prompts& prompts)
{
    if (!TellIfEmptyTable(Records(recordForm), prompts))
        return false;
    // The picture of the branch before would stand for nobody here.
    EmptySubjectPanel(*mainWindow, EmptiedBy::BranchWithoutRecords);
    return true;
}

void ShowFirstSubject(const BoxWork& work, const SubjectPanel& panel)
{
    forms::Form1& form = *work.Form1;
    const bool hasPicture = ShowSubject(work, panel);
    form.Caption = u"Lineforge "_s + work.Branch.sBranchName + u" Tree Branch.";
    work.Form3->Caption = u"Lineforge "_s + work.Branch.sBranchName + u" Records.";
    if (!hasPicture) {
        form.Shape1.Visible = false;
        TellPictureMissing(work.Record, panel.Prompts);
    }
}

} // namespace lineforge
