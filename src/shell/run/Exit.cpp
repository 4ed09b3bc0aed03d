#include "shell/run/Exit.h"

#include "forms/Form1.h"
#include "forms/Form11.h"
#include "forms/Form12.h"
#include "forms/Form2.h"
#include "forms/Form3.h"
#include "forms/Form4.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "forms/Form7.h"
#include "forms/Form8.h"
#include "forms/form9.h"
#include "map/items/MapFile.h"
#include "map/tools/LeaveTools.h"
#include "map/tools/ToolImages.h"
#include "program/branch/WorkDatabase.h"
#include "shell/branches/CloseBranch.h"
#include "shell/run/RunHandler.h"

#include <functional>

namespace lineforge
{

namespace
{
// False when the step was refused for what no answer can help, which is told.
bool RunOrTell(Program& p, const std::function<void()>& step)
{
    try {
        step();
    } catch (const RuntimeError& refusal) {
        if (!refusal.IsTold)
            TellError(p, refusal);
        return refusal.IsTold;
    }
    return true;
}
} // namespace

void ExitProgram(Program& p)
{
    SaveBoxes(p.Map, p.Branch, p.Files);
    StoreTyped(p.Form3);
    LeaveToolsIfOpen(p);
    p.Form5->MMControl1.Command(u"Close");
    // The main window takes all others with it and ends the program.
    p.Form1.Unload();
}

void ExitFromGallery(Program& p)
{
    CloseBranch(p);
    p.Form1.Unload();
}

void ExitFromRecords(Program& p)
{
    p.Errors.Clear();
    p.Errors.Ignoring([&] { Records(p.Form3).Update(); });
    // Who has been told that a text isn't stored wants to see to it.
    if (p.Errors.Last && p.Errors.Last->IsTold)
        return;
    RunOrTell(p, [&p] { SaveBoxes(p.Map, p.Branch, p.Files); });
    // Or the windows' end would ask for the tools again.
    if (!RunOrTell(p, [&p] { LeaveToolsIfOpen(p); }))
        HideTools(*p.Form1);
    p.Form5->MMControl1.Command(u"Close");
    // The main window takes all others with it and ends the program; a text that still can't be stored is told.
    p.Form1.Unload();
}

void CloseMainWindow(Program& p)
{
    LeaveToolsIfOpen(p);
    StoreTyped(p.Form3);
    p.Form1->MMControl1.Command(u"Close");
    p.Form5->MMControl1.Command(u"Close");
    p.Form2.Unload();
    p.Form3.Unload();
    p.Form4.Unload();
    p.Form5.Unload();
    p.Form6.Unload();
    p.Form7.Unload();
    p.Form8.Unload();
    p.form9.Unload();
    p.Form11.Unload();
    p.Form12.Unload();
    p.Loop.End(0);
}

} // namespace lineforge
