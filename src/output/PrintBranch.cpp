#include "output/PrintBranch.h"

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "map/items/MapDisplay.h"
#include "output/OutputMode.h"
#include "output/PrintErrors.h"
#include "output/RecordReport.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/BranchUi.h"
#include "program/ui/Meanwhile.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr Rectangle frame{1000, 0, 8700, 14000};

void SetUpPage(Program& p)
{
    p.Printer.Font = {u"Courier"_s, 7};
    p.Printer.Landscape = true;
}

// An item that fails costs its own drawing; the first of the failures is told. A printer that isn't there goes before
// them all, whichever item would have been the first to need it.
void DrawOnPaper(Program& p)
{
    p.Printer.Begin();
    p.Errors.Clear();
    RedrawMap(p);
    if (p.Errors.First)
        throw RuntimeError(*p.Errors.First);
}

// Two records to a page; a page is begun only for records that follow.
void PrintAllRecords(Program& p)
{
    Meanwhile meanwhile(p);
    Recordset& records = Records(p);
    records.MoveFirst();
    while (!records.Eof()) {
        PrintRecord(p);
        PrintRecord(p);
        if (!records.Eof())
            p.Printer.NewPage();
        meanwhile.KeepPainted();
    }
}

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
        ReportError(p);
}

void PrintOrTell(Program& p, const Form& form)
{
    if (!PrintWindow(p, form))
        p.Prompts.MsgBox(u"Lineforge"_s, u"The form could not be printed."_s, Buttons::Plain);
}
} // namespace

void PrintMap(Program& p)
{
    if (TellIfNoBranch(p))
        return;
    p.Screen.Pointer = MousePointer::Hourglass;
    p.Output.PrintToPrinter = 1;
    p.Output.Page = &p.Printer;
    SetUpPage(p);
    ReportingErrors(p, [&] { DrawOnPaper(p); });
    p.Printer.ForeColor = Black;
    ReportingErrors(p, [&] { p.Printer.Box(frame); });
    ReportingErrors(p, [&] { p.Printer.EndDoc(); });
    p.Printer.Landscape = false;
    p.Printer.DrawWidth = 1;
    p.Output.PrintToPrinter = 0;
    p.Output.Page = nullptr;
    p.Screen.Pointer = MousePointer::Default;
}

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

void PrintCurrentRecord(Program& p)
{
    if (TellIfNoBranch(p))
        return;
    p.Output.OutputMode = OutputMode::SingleToPrinter;
    ReportingErrors(p, [&] { PrintRecord(p); });
    ReportingErrors(p, [&] { p.Printer.EndDoc(); });
    p.Output.OutputMode = OutputMode::None;
}

void PrintDatabase(Program& p)
{
    if (p.Prompts.MsgBox(u"DataBase Print"_s, u"Ready to Print Complete DataBase ?"_s, Buttons::QuestionOkCancel) !=
        Answer::Ok)
        return;
    p.Output.OutputMode = OutputMode::None;
    ReportingErrors(p, [&] { PrintAllRecords(p); });
    ReportingErrors(p, [&] { p.Printer.EndDoc(); });
    ReportingErrors(p, [&] { Records(p).MoveFirst(); });
}

void SetUpPrinter(Program& p)
{
    p.Prompts.PickPrinter();
}

} // namespace lineforge
