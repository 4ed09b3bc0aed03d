#include "forms/Form4.h"
#include "interchange/BranchExport.h"
#include "shell/handlers/InstallHandlers.h"

namespace lineforge
{

void InstallForm4(Program& p, forms::Form4& form)
{
    form.Load = [&p] { LoadExportWindow(p); };
    form.Drive1.Change = [&p] { ChooseExportDrive(p); };
    form.Dir1.Change = [&p] { TakeExportDirectory(p); };
    form.Dir1.Click = [&p] { TakeExportDirectory(p); };
    form.Command1.Click = [&p] { ExportBranch(p); };
    form.Command2.Click = [&p] { CancelExport(p); };
}

} // namespace lineforge
