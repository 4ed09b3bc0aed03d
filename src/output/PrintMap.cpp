#include "output/PrintMap.h"

#include "map/items/MapDisplay.h"
#include "output/PrintErrors.h"
#include "program/state/Program.h"

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
    RedrawMap(p, MapOnPaper(p.Printer));
    if (p.Errors.First)
        throw RuntimeError(*p.Errors.First);
}
} // namespace

void PrintMap(Program& p)
{
    if (TellIfNoBranch(p.Branch, p.Form3, p.Prompts))
        return;
    p.Screen.Pointer = MousePointer::Hourglass;
    SetUpPage(p);
    ReportingErrors(p.Errors, p.Prompts, [&] { DrawOnPaper(p); });
    p.Printer.ForeColor = Black;
    ReportingErrors(p.Errors, p.Prompts, [&] { p.Printer.Box(frame); });
    ReportingErrors(p.Errors, p.Prompts, [&] { p.Printer.EndDoc(); });
    p.Printer.Landscape = false;
    p.Printer.DrawWidth = 1;
    p.Screen.Pointer = MousePointer::Default;
}

} // namespace lineforge
