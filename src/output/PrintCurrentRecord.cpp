#include "output/PrintCurrentRecord.h"

#include "output/OutputMode.h"
#include "output/PrintErrors.h"
#include "output/RecordReport.h"

namespace lineforge
{

void PrintCurrentRecord(Program& p)
{
    if (TellIfNoBranch(p.Branch, p.Form3, p.Prompts))
        return;
    p.Output.OutputMode = OutputMode::SingleToPrinter;
    ReportingErrors(p, [&] { PrintRecord(p); });
    ReportingErrors(p, [&] { p.Printer.EndDoc(); });
    p.Output.OutputMode = OutputMode::None;
}

} // namespace lineforge
