#include "records/RecordPicture.h"
#include "shell/OpenBranch.h"
#include "shell/handlers/Handlers.h"

namespace lineforge
{

namespace
{
void Open(Program& p)
{
    OpenSelectedBranch(p);
    FollowWithPicture(p);
}
} // namespace

void InstallForm8(Program& p, forms::Form8& form)
{
    form.Load = [&p] { LoadBranchList(p); };
    form.List1.DblClick = [&p] { Open(p); };
    form.Command1.Click = [&p] { Open(p); };
    form.Command2.Click = [&p] { CancelBranchList(p); };
    form.Command3.Click = [&p] { ChangeHomeDirectory(p); };
}

} // namespace lineforge
