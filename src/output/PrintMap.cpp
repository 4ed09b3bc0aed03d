#include "output/PrintMap.h"

#include "map/items/MapDisplay.h"
#include "output/PrintErrors.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr Rectangle frame{1000, 0, 8700, 14000};

void SetUpPage(Printer& printer)
{
    printer.Font = {u"Courier"_s, 7};
    printer.Landscape = true;
}

// An item that fails costs its own drawing; the first of the failures is told. A printer that isn't there goes before
// them all, whichever item would have been the first to need it.
void DrawOnPaper(const MapWork& work, Printer& printer)
{
    printer.Begin();
    work.Errors.Clear();
    RedrawMap(work, MapOnPaper(printer));
    if (work.Errors.First)
        throw RuntimeError(*work.Errors.First);
}
} // namespace

void PrintMap(const MapWork& work, Printer& printer, Screen& screen)
{
    if (TellIfNoBranch(work.Branch, work.Form3, work.Prompts))
        return;
    screen.Pointer = MousePointer::Hourglass;
    SetUpPage(printer);
    ReportingErrors(work.Errors, work.Prompts, [&] { DrawOnPaper(work, printer); });
    printer.ForeColor = Black;
    ReportingErrors(work.Errors, work.Prompts, [&] { printer.Box(frame); });
    ReportingErrors(work.Errors, work.Prompts, [&] { printer.EndDoc(); });
    printer.Landscape = false;
    printer.DrawWidth = 1;
    screen.Pointer = MousePointer::Default;
}

} // namespace lineforge
