#include "output/PrintWindow.h"

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
bool PrintWindow(Program& p, const Form& form)
{
    bool isPrinted = false;
    p.Errors.Clear();
    p.Errors.Ignoring([&] {
        p.Printer.PrintPicture(form.Picture(), form.ScaleSize().Width);
        p.Printer.EndDoc();
        isPrinted = true;
    });
    if (!isPrinted)
        p.Printer.Abort();
    return isPrinted;
}

void PrintOrReport(Program& p, const Form& form)
{
    if (!PrintWindow(p, form))
        ReportError(p.Errors, p.Prompts);
}

void PrintOrTell(Program& p, const Form& form)
{
    if (!PrintWindow(p, form))
        p.Prompts.MsgBox(u"Lineforge"_s, u"The form could not be printed."_s, Buttons::Plain);
}
} // namespace

void PrintMainWindow(Program& p)
{
    PrintOrReport(p, *p.Form1);
}

void PrintComparisonWindow(Program& p)
{
    PrintOrReport(p, *p.Form6);
}

void PrintRecordWindow(Program& p)
{
    PrintOrTell(p, *p.Form3);
}

void PrintGalleryWindow(Program& p)
{
    PrintWindow(p, *p.Form5);
}

void PrintFromPictureWindow(Program& p)
{
    PrintOrTell(p, *p.Form1);
}

} // namespace lineforge
