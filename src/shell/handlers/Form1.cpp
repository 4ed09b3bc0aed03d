#include "map/LineageMarks.h"
#include "map/MapInteraction.h"
#include "program/BranchUi.h"
#include "records/RecordForm.h"
#include "shell/CloseBranch.h"
#include "shell/Exit.h"
#include "shell/Help.h"
#include "shell/NewBranch.h"
#include "shell/OpenBranch.h"
#include "shell/StartUp.h"
#include "shell/handlers/Handlers.h"

namespace lineforge
{

namespace
{
void OpenFileOrHelpMenu(Program& p)
{
    p.form9.Unload();
    ClearMapCursor(p);
}
} // namespace

void InstallForm1(Program& p, forms::Form1& form)
{
    form.Load = [&p] { LoadMainWindow(p); };
    form.Unloading = [&p] { CloseMainWindow(p); };
    // A press on the map isn't one on the bare window, and leaves the splash.
    form.Click = [&p] { p.form9.Unload(); };

    form.mnuFile.Click = [&p] { OpenFileOrHelpMenu(p); };
    form.New.Click = [&p] { NewBranch(p); };
    form.Open.Click = [&p] { ChooseBranch(p); };
    form.mnuCloseDB.Click = [&p] { CloseBranch(p); };
    form.mnuExit.Click = [&p] { ExitProgram(p); };

    form.mnuEdit.Click = [&p] { ClearMapCursor(p); };
    form.mnuViewRecs.Click = [&p] { ShowRecordForm(p); };
    form.mnuTreeGraphics.Click = [&p] { ClearMapCursor(p); };

    form.mnuHelp.Click = [&p] { OpenFileOrHelpMenu(p); };
    form.mnuConts.Click = [&p] { ShowHelpContents(p); };
    form.MnuAbout.Click = [&p] { ShowAbout(p); };

    form.VScroll1.Change = [&form] { form.Picture1.Top = -form.VScroll1.Value; };
    form.Picture1.MouseDown = [&p](int, int, double x, double y) { PressOnMap(p, x, y); };
    form.Picture1.MouseUp = [&p](int, int, double x, double y) { ReleaseOnMap(p, x, y); };
    form.Picture1.DblClick = [&p] { DoubleClickOnMap(p); };

    form.Command1.Click = [&p] { ShowRecordForm(p); };
    form.Command3.Click = [&p] { ViewLineage(p); };
    form.Command4.Click = [&p] { ClearLineage(p); };
}

} // namespace lineforge
