#include "forms/Form1.h"
#include "forms/Form2.h"
#include "output/PrintWindow.h"
#include "shell/handlers/InstallHandlers.h"

namespace lineforge
{

void InstallForm2(Program& p, forms::Form2& form)
{
    form.mnuPrSetup.Click = [&p] { p.Prompts.PickPrinter(); };
    form.mnuPrint.Click = [&p] { PrintFromPictureWindow(*p.Form1, p.Printer, p.Errors, p.Prompts); };
    form.Image1.Click = [&form] { form.Hide(); };
}

} // namespace lineforge
