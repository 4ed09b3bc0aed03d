#include "output/PrintCurrentRecord.h"

#include "output/OutputMode.h"
#include "output/PrintErrors.h"
#include "output/RecordReport.h"
#include "program/branch/WorkDatabase.h"

namespace lineforge
{

void PrintCurrentRecord(const RecordOutput& output)
{
    if (TellIfNoBranch(output.Branch, output.Form3, output.Prompts))
        return;
    output.State.OutputMode = OutputMode::SingleToPrinter;
    ReportingErrors(output.Errors, output.Prompts,
                    [&] { PrintRecord(Records(output.Form3), output.State, output.Printer, output.Scratch); });
    ReportingErrors(output.Errors, output.Prompts, [&] { output.Printer.EndDoc(); });
    output.State.OutputMode = OutputMode::None;
}

} // namespace lineforge
