#include "shell/run/Help.h"

#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

void ShowHelpContents(Prompts& prompts, const BranchState& branch)
{
    prompts.ShowHelp(branch.HomeDir + u"LfgHelp.hlp");
}

void ShowRecordHelp(Prompts& prompts, const BranchState& branch, ToolState& tools, Screen& screen)
{
    ClearMapCursor(tools, screen);
    ShowHelpContents(prompts, branch);
}

void ShowAbout(Prompts& prompts)
{
    prompts.MsgBox(u"About Lineforge"_s,
                   u"Ancestral mapping and Database program.\n"
                   u"Created January 2001, Version 1.0\n"
                   u"© Tarnwick Technology\n"
                   u"Contact: the supplier of this copy.\n"
                   u"This program may be passed on, complete and unchanged."_s,
                   Buttons::Information);
}

} // namespace lineforge
