#include "gedcom/GedcomConversion.h"
#include "gedcom/PanelStep.h"
#include "shell/handlers/Handlers.h"

namespace lineforge
{

void InstallForm11(Program& p, forms::Form11& form)
{
    form.Load = [&p] { CentreConversion(p); };
    form.VScroll1.Change = [&form] { ScrollPanel(form.Picture1, form.VScroll1); };
}

} // namespace lineforge
