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
void PrintAllRecords(Program& p)
{
    Meanwhile meanwhile(p.Loop);
    Recordset& records = Records(p.Form3);
    records.MoveFirst();
    while (!records.Eof()) {
        PrintRecord(p);
        PrintRecord(p);
        if (!records.Eof())
            p.Printer.NewPage();
        meanwhile.KeepPainted();
    }
}
} // namespace

void PrintDatabase(Program& p)
{
    if (p.Prompts.MsgBox(u"DataBase Print"_s, u"Ready to Print Complete DataBase ?"_s, Buttons::QuestionOkCancel) !=
        Answer::Ok)
        return;
    p.Output.OutputMode = OutputMode::None;
    ReportingErrors(p, [&] { PrintAllRecords(p); });
    ReportingErrors(p, [&] { p.Printer.EndDoc(); });
    ReportingErrors(p, [&] { Records(p.Form3).MoveFirst(); });
}

} // namespace lineforge
