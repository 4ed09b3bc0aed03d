#include "forms/Form4.h"
#include "interchange/BranchExport.h"
#include "shell/handlers/InstallHandlers.h"

namespace lineforge
{

void InstallForm4(Program& p, forms::Form4& form)
{
    form.Load = [&p, &form] { LoadExportWindow(form, p.Screen, p.Files); };
    form.Drive1.Change = [&form] { ChooseExportDrive(form); };
    form.Dir1.Change = [&p, &form] { TakeExportDirectory(p.Scratch, form); };
    form.Dir1.Click = [&p, &form] { TakeExportDirectory(p.Scratch, form); };
    form.Command1.Click = [&p] { ExportBranch(p); };
    form.Command2.Click = [&p] { CancelExport(p.Form4, p.Loop); };
}

} // namespace lineforge
