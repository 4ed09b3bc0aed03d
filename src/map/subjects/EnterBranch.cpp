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
bool ShowSubject(Program& p)
{
    p.Errors.Ignoring([&] { SetPictureName(p.Record, *p.Form3); });
    const bool hasPicture = ShowSubjectPicture(p);
    p.Errors.Ignoring([&] { MarkCurrentBox(p); });
    p.Errors.Ignoring([&] { FillSubjectLabels(p.Form1, p.Form3); });
    return hasPicture;
}
} // namespace

void PutMapAway(Program& p)
{
    ClearMapPicture(p);
    ResetMapFont(p.Form1->Picture1);
    ForgetMap(p);
    if (p.Branch.IsSiblingShown())
        EndAlternate(p.Branch, p.Form3);
}

void ReturnToOwnSubject(Program& p)
{
    if (!p.Branch.IsSiblingShown())
        return;
    ReturnFromSibling(p);
    ShowSubject(p);
}

void DrawBranchMap(Program& p)
{
    p.Errors.Ignoring([&] {
        try {
            ReadMapFile(p);
        } catch (const RuntimeError& refusal) {
            // A part of the map has come.
            if (refusal.Number == ErrorNumber::InputPastEnd)
                WarnOfFirstEmptyList(p);
            throw;
        }
    });
    ParseWhatIsThere(p);
}

void StoreTypedOrStay(Program& p)
{
    try {
        StoreTyped(p.Form3);
    } catch (RuntimeError& refusal) {
        ReportError(p.Errors, p.Prompts, refusal);
        refusal.IsTold = true;
        throw;
    }
}

bool EnterBranch(Program& p, const QString& name, const QString& directory)
{
    StoreTypedOrStay(p);
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

bool EmptySubjectIfNoRecords(Program& p)
{
    if (!TellIfEmptyTable(Records(p.Form3), p.Prompts))
        return false;
    // The picture of the branch before would stand for nobody here.
    EmptySubjectPanel(*p.Form1, EmptiedBy::BranchWithoutRecords);
    return true;
}

void ShowFirstSubject(Program& p)
{
    forms::Form1& form = *p.Form1;
    const bool hasPicture = ShowSubject(p);
    form.Caption = u"Lineforge "_s + p.Branch.sBranchName + u" Tree Branch.";
    p.Form3->Caption = u"Lineforge "_s + p.Branch.sBranchName + u" Records.";
    if (!hasPicture) {
        form.Shape1.Visible = false;
        TellPictureMissing(p.Record, p.Prompts);
    }
}

} // namespace lineforge
