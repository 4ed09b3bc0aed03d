#include "output/PrintDatabase.h"

#include "output/OutputMode.h"
#include "output/PrintErrors.h"
#include "output/RecordReport.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/Meanwhile.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// Two records to a page; a page is begun only for records that follow.
void PrintAllRecords(const RecordOutput& output)
{
    Meanwhile meanwhile(output.Loop);
    Recordset& records = Records(output.Form3);
    records.MoveFirst();
    while (!records.Eof()) {
        PrintRecord(Records(output.Form3), output.State, output.Printer, output.Scratch);
        PrintRecord(Records(output.Form3), output.State, output.Printer, output.Scratch);
        if (!records.Eof())
            output.Printer.NewPage();
        meanwhile.KeepPainted();
    }
}
} // namespace

void PrintDatabase(const RecordOutput& output)
{
    if (output.Prompts.MsgBox(u"DataBase Print"_s, u"Ready to Print Complete DataBase ?"_s,
                              Buttons::QuestionOkCancel) != Answer::Ok)
        return;
    output.State.OutputMode = OutputMode::None;
    ReportingErrors(output.Errors, output.Prompts, [&] { PrintAllRecords(output); });
    ReportingErrors(output.Errors, output.Prompts, [&] { output.Printer.EndDoc(); });
    ReportingErrors(output.Errors, output.Prompts, [&] { Records(output.Form3).MoveFirst(); });
}

} // namespace lineforge
