#include "output/RecordReport.h"

#include "output/OutputMode.h"
#include "output/Wrap.h"
#include "program/branch/WorkDatabase.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct ReportLine {
    QStringView Label;
    QStringView Field;
};

// In the file the place of the wedding comes first.
constexpr ReportLine fileLines[] = {
    {u"Surname:        ", u"Surname"},          {u"ForeNames:      ", u"ForeName"},
    {u"Maiden Name:    ", u"Maiden"},           {u"Gender:         ", u"Gender"},
    {u"Nationality:    ", u"Nationality"},      {u"Fathers Record: ", u"FatherRec"},
    {u"Mothers Record: ", u"MotherRec"},        {u"Birth date:     ", u"BirthDate"},
    {u"Birth Place:    ", u"BirthPlace"},       {u"Spouse:         ", u"Spouse"},
    {u"Children:       ", u"Children"},         {u"Partner:        ", u"Partner"},
    {u"Wedding Place:  ", u"Wedding"},          {u"Wedding Date:   ", u"WedDate"},
    {u"Prev.Children:  ", u"PrevChildren"},     {u"Education:      ", u"Education"},
    {u"Profession:     ", u"Profession"},       {u"Deceased:       ", u"Deceased"},
    {u"Birth Cert.     ", u"BirthCertificate"}, {u"Marriage Cert:  ", u"MarriageCertificate"},
    {u"Death Cert:     ", u"DeathCertificate"},
};

// On paper, and on the clipboard, its date does. The gender shares its line on paper with three more fields.
constexpr ReportLine namesOnPaper[] = {
    {u"           Surname:       ", u"Surname"},
    {u"           ForeNames:     ", u"ForeName"},
    {u"           Maiden Name:   ", u"Maiden"},
};
constexpr ReportLine originOnPaper[] = {
    {u"           Gender:        ", u"Gender"},
    {u".       Nationality: ", u"Nationality"},
    {u".        Fathers Record: ", u"FatherRec"},
    {u".        Mothers Record: ", u"MotherRec"},
};
constexpr ReportLine lifeOnPaper[] = {
    {u"           Birth date:    ", u"BirthDate"},
    {u"           Birth Place:   ", u"BirthPlace"},
    {u"           Spouse:        ", u"Spouse"},
    {u"           Children:      ", u"Children"},
    {u"           Partner:       ", u"Partner"},
    {u"           Wedding Date:  ", u"WedDate"},
    {u"           Wedding Place: ", u"Wedding"},
    {u"           Prev.Children: ", u"PrevChildren"},
    {u"           Education:     ", u"Education"},
    {u"           Profession:    ", u"Profession"},
    {u"           Deceased:      ", u"Deceased"},
    {u"           Birth Cert.    ", u"BirthCertificate"},
    {u"           Marriage Cert: ", u"MarriageCertificate"},
    {u"           Death Cert:    ", u"DeathCertificate"},
};

struct ClipboardLine {
    QStringView Label;
    QStringView Field;
    bool IsWrapped = false;
};

constexpr ClipboardLine clipboardLines[] = {
    {u"           Surname:       ", u"Surname"},          {u"           ForeNames:     ", u"ForeName"},
    {u"           Maiden Name:   ", u"Maiden"},           {u"           Gender:        ", u"Gender"},
    {u"           Nationality:   ", u"Nationality"},      {u"           Father Rec:    ", u"FatherRec"},
    {u"           Mother Rec:    ", u"MotherRec"},        {u"           Birth date:    ", u"BirthDate"},
    {u"           Birth Place:   ", u"BirthPlace"},       {u"           Spouse:        ", u"Spouse"},
    {u"           Children:      ", u"Children"},         {u"           Partner:       ", u"Partner"},
    {u"           Wedding Date:  ", u"WedDate"},          {u"           Wedding Place: ", u"Wedding"},
    {u"           Prev.Children: ", u"PrevChildren"},     {u"           Education:     ", u"Education", true},
    {u"           Profession:    ", u"Profession", true}, {u"           Deceased:      ", u"Deceased"},
    {u"           Birth Cert.    ", u"BirthCertificate"}, {u"           Marriage Cert: ", u"MarriageCertificate"},
    {u"           Death Cert:    ", u"DeathCertificate"}, {u"           Notes(1):      ", u"Medical", true},
    {u"           Notes(2):      ", u"Notes", true},
};

constexpr QStringView fileIndent = u"        ";
constexpr qsizetype paperIndent = 23;
constexpr qsizetype clipboardIndent = 33;

QString LineOf(const Recordset& record, const ReportLine& line)
{
    return line.Label + record.Text(line.Field);
}

void WriteWrapped(Program& p, const QString& value)
{
    for (const QString& line : Wrapped(p.Scratch, value))
        p.Output.TextFile->Line(fileIndent, line);
}

void PrintWrapped(Program& p, const QString& value)
{
    for (const QString& line : Wrapped(p.Scratch, value))
        p.Printer.PrintLine(QString(paperIndent, u' ') + line);
}

template <std::size_t Count>
void PrintLines(Printer& printer, const Recordset& record, const ReportLine (&lines)[Count])
{
    for (const ReportLine& line : lines)
        printer.PrintLine(LineOf(record, line));
}

void PrintOrigin(Printer& printer, const Recordset& record)
{
    QString text;
    for (const ReportLine& part : originOnPaper)
        text += LineOf(record, part);
    printer.PrintLine(text);
}
} // namespace

void WriteRecordToFile(Program& p)
{
    const Recordset& record = Records(p);
    if (record.Eof())
        return;
    TextWriter& file = *p.Output.TextFile;
    file.Line(u"     ANCESTRAL RECORD ", record.Text(u"File"));
    file.Line({});
    for (const ReportLine& line : fileLines)
        file.Line(line.Label, record.Text(line.Field));
    file.Line(u"Notes(1):       ");
    WriteWrapped(p, record.Text(u"Medical"));
    // KEPT(RecordReportFileTest.FullRecord_HasEveryFieldOnItsLine): one blank fewer than its sister.
    // Mended, the line would differ from that of every report written so far.
    file.Line(u"Notes(2):      ");
    WriteWrapped(p, record.Text(u"Notes"));
    file.Line({});
}

void PrintRecord(Program& p)
{
    Recordset& record = Records(p);
    if (record.Eof())
        return;
    Printer& printer = p.Printer;
    printer.Font = {u"Arial"_s, 12, true};
    printer.PrintLine(u"        ANCESTRAL RECORD "_s + record.Text(u"File"));
    printer.PrintLine({});
    // Everything below stays bold, too.
    printer.Font.Size = 10;
    PrintLines(printer, record, namesOnPaper);
    PrintOrigin(printer, record);
    PrintLines(printer, record, lifeOnPaper);
    printer.PrintLine(u"           Notes(1):      "_s);
    PrintWrapped(p, record.Text(u"Medical"));
    // The empty line stands below this one only.
    printer.PrintLine(u"           Notes(2):      "_s);
    printer.PrintLine({});
    PrintWrapped(p, record.Text(u"Notes"));
    printer.PrintLine({});
    printer.PrintLine({});
    if (p.Output.OutputMode != OutputMode::SingleToPrinter)
        record.MoveNext();
}

QString RecordAsText(Program& p)
{
    const Recordset& record = Records(p);
    QString text = u"           Data Ref:      "_s + p.Form3->Label25.Caption.value() + u'\n';
    for (const ClipboardLine& line : clipboardLines) {
        const QString value = record.Text(line.Field);
        text += line.Label;
        text += line.IsWrapped ? Wrapped(p.Scratch, value).join(u'\n' + QString(clipboardIndent, u' ')) : value;
        text += u'\n';
    }
    return text;
}

} // namespace lineforge
