#include "forms/Form12.h"
#include "gedcom/writer/GedcomWriter.h"
#include "program/ui/ProgressPanel.h"
#include "shell/handlers/InstallHandlers.h"

namespace lineforge
{

void InstallForm12(Program& p, forms::Form12& form)
{
    form.Load = [&p, &form] { LoadGedcomForm(form, p.Screen, p.Form3); };
    // The window keeps its texts between uses, however it was left.
    form.CloseByFrame = [&form] { form.Hide(); };
    form.Command1.Click = [&p] { CreateGedcomFile(p); };
    form.Command2.Click = [&form] { form.Hide(); };
    form.Command3.Click = [&form] { ResetGedcomForm(form); };
    form.VScroll1.Change = [&form] { ScrollPanel(form.Picture1, form.VScroll1); };
}

} // namespace lineforge
