#include "shell/branches/CloseBranch.h"

#include "forms/Form1.h"
#include "forms/Form2.h"
#include "forms/Form3.h"
#include "forms/Form4.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "forms/Form7.h"
#include "forms/Form8.h"
#include "forms/form9.h"
#include "map/items/MapFile.h"
#include "map/subjects/SubjectPanel.h"
#include "map/tools/LeaveTools.h"
#include "program/branch/WorkDatabase.h"
#include "shell/branches/HomeInUse.h"

namespace lineforge
{

void CloseBranch(Program& p)
{
    LeaveToolsIfOpen(p);
    SaveBoxes(p.Map, p.Branch, p.Files);
    const QString maidenName = p.Form1->Label15.Caption;
    StoreTyped(p.Form3);
    p.Form5->MMControl1.Command(u"Close");
    ForgetMap(p.Map, p.Mouse, p.Tools);
    p.Branch.UsingAlternate = 0;

    forms::Form1& form = *p.Form1;
    EmptySubjectPanel(*p.Form1, EmptiedBy::CloseBranch);
    // KEPT(CloseBranchTest.MaidenName_KeepsWhatItShowed_WhereAnotherWasStillPending): it keeps its text, whatever has
    // been stored meanwhile.
    // Mended, it could show the name that has just been stored.
    form.Label15.Caption = maidenName;
    form.Picture1.Cls();
    form.Shape1.Visible = false;

    p.Branch.sDbaseName.clear();
    p.Record.sPicFile.clear();
    p.Branch.WorkDir.clear();
    p.Branch.WorkDirLen = 0;

    p.Form2.Unload();
    p.Form3.Unload();
    p.Form4.Unload();
    p.Form5.Unload();
    p.Form6.Unload();
    p.Form7.Unload();
    p.Form8.Unload();
    p.form9.Unload();
    LeaveOtherHomes(p);
}

} // namespace lineforge
