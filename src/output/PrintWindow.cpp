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
bool PrintWindow(const Form& form, Printer& printer, ErrorState& errors)
{
    bool isPrinted = false;
    errors.Clear();
    errors.Ignoring([&] {
        printer.PrintPicture(form.Picture(), form.ScaleSize().Width);
        printer.EndDoc();
        isPrinted = true;
    });
    if (!isPrinted)
        printer.Abort();
    return isPrinted;
}

void PrintOrReport(const Form& form, Printer& printer, ErrorState& errors, Prompts& prompts)
{
    if (!PrintWindow(form, printer, errors))
        ReportError(errors, prompts);
}

void PrintOrTell(const Form& form, Printer& printer, ErrorState& errors, Prompts& prompts)
{
    if (!PrintWindow(form, printer, errors))
        prompts.MsgBox(u"Lineforge"_s, u"The form could not be printed."_s, Buttons::Plain);
}
} // namespace

void PrintMainWindow(const forms::Form1& form, Printer& printer, ErrorState& errors, Prompts& prompts)
{
    PrintOrReport(form, printer, errors, prompts);
}

void PrintComparisonWindow(const forms::Form6& form, Printer& printer, ErrorState& errors, Prompts& prompts)
{
    PrintOrReport(form, printer, errors, prompts);
}

void PrintRecordWindow(const forms::Form3& form, Printer& printer, ErrorState& errors, Prompts& prompts)
{
    PrintOrTell(form, printer, errors, prompts);
}

void PrintGalleryWindow(const forms::Form5& form, Printer& printer, ErrorState& errors)
{
    PrintWindow(form, printer, errors);
}

void PrintFromPictureWindow(const forms::Form1& form, Printer& printer, ErrorState& errors, Prompts& prompts)
{
    PrintOrTell(form, printer, errors, prompts);
}

} // namespace lineforge
