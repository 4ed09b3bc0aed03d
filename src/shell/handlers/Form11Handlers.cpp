#include "forms/Form1.h"
#include "forms/Form11.h"
#include "gedcom/report/GedcomConversion.h"
#include "program/ui/ProgressPanel.h"
#include "shell/handlers/InstallHandlers.h"

namespace lineforge
{

void InstallForm11(Program& p, forms::Form11& form)
{
    form.Load = [&p, &form] { CentreConversion(form, *p.Form1); };
    form.VScroll1.Change = [&form] { ScrollPanel(form.Picture1, form.VScroll1); };
}

} // namespace lineforge
