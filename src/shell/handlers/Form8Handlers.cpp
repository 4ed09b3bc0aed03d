#include "forms/Form8.h"
#include "shell/branches/OpenBranch.h"
#include "shell/handlers/InstallHandlers.h"

namespace lineforge
{

void InstallForm8(Program& p, forms::Form8& form)
{
    form.Load = [&p] { LoadBranchList(p); };
    form.List1.DblClick = [&p] { OpenSelectedBranch(p); };
    form.Command1.Click = [&p] { OpenSelectedBranch(p); };
    form.Command2.Click = [&p] { CloseBranchList(p); };
    form.Command3.Click = [&p] { ChangeHomeDirectory(p); };
}

} // namespace lineforge
