#include "shell/run/Help.h"

#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

void ShowHelpContents(Program& p)
{
    p.Prompts.ShowHelp(p.Branch.HomeDir + u"LfgHelp.hlp");
}

void ShowRecordHelp(Program& p)
{
    ClearMapCursor(p.Tools, p.Screen);
    ShowHelpContents(p);
}

void ShowAbout(Program& p)
{
    p.Prompts.MsgBox(u"About Lineforge"_s,
                     u"Ancestral mapping and Database program.\n"
                     u"Created January 2001, Version 1.0\n"
                     u"© Tarnwick Technology\n"
                     u"Contact: the supplier of this copy.\n"
                     u"This program may be passed on, complete and unchanged."_s,
                     Buttons::Information);
}

} // namespace lineforge
