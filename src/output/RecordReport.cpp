#include "output/RecordReport.h"

#include "forms/Form3.h"
#include "output/OutputMode.h"
#include "output/Wrap.h"
#include "platform/store/Fields.h"
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
    {u"Surname:        ", Field::Surname},          {u"ForeNames:      ", Field::Forename},
    {u"Maiden Name:    ", Field::Maiden},           {u"Gender:         ", Field::Gender},
    {u"Nationality:    ", Field::Nationality},      {u"Fathers Record: ", Field::FatherRec},
    {u"Mothers Record: ", Field::MotherRec},        {u"Birth date:     ", Field::BirthDate},
    {u"Birth Place:    ", Field::BirthPlace},       {u"Spouse:         ", Field::Spouse},
    {u"Children:       ", Field::Children},         {u"Partner:        ", Field::Partner},
    {u"Wedding Place:  ", Field::Wedding},          {u"Wedding Date:   ", Field::WedDate},
    {u"Prev.Children:  ", Field::PrevChildren},     {u"Education:      ", Field::Education},
    {u"Profession:     ", Field::Profession},       {u"Deceased:       ", Field::Deceased},
    {u"Birth Cert.     ", Field::BirthCertificate}, {u"Marriage Cert:  ", Field::MarriageCertificate},
    {u"Death Cert:     ", Field::DeathCertificate},
};

// On paper, and on the clipboard, its date does. The gender shares its line on paper with three more fields.
constexpr ReportLine namesOnPaper[] = {
    {u"           Surname:       ", Field::Surname},
    {u"           ForeNames:     ", Field::Forename},
    {u"           Maiden Name:   ", Field::Maiden},
};
constexpr ReportLine originOnPaper[] = {
    {u"           Gender:        ", Field::Gender},
    {u".       Nationality: ", Field::Nationality},
    {u".        Fathers Record: ", Field::FatherRec},
    {u".        Mothers Record: ", Field::MotherRec},
};
constexpr ReportLine lifeOnPaper[] = {
    {u"           Birth date:    ", Field::BirthDate},
    {u"           Birth Place:   ", Field::BirthPlace},
    {u"           Spouse:        ", Field::Spouse},
    {u"           Children:      ", Field::Children},
    {u"           Partner:       ", Field::Partner},
    {u"           Wedding Date:  ", Field::WedDate},
    {u"           Wedding Place: ", Field::Wedding},
    {u"           Prev.Children: ", Field::PrevChildren},
    {u"           Education:     ", Field::Education},
    {u"           Profession:    ", Field::Profession},
    {u"           Deceased:      ", Field::Deceased},
    {u"           Birth Cert.    ", Field::BirthCertificate},
    {u"           Marriage Cert: ", Field::MarriageCertificate},
    {u"           Death Cert:    ", Field::DeathCertificate},
};

struct ClipboardLine {
    QStringView Label;
    QStringView Field;
    bool IsWrapped = false;
};

constexpr ClipboardLine clipboardLines[] = {
    {u"           Surname:       ", Field::Surname},
    {u"           ForeNames:     ", Field::Forename},
    {u"           Maiden Name:   ", Field::Maiden},
    {u"           Gender:        ", Field::Gender},
    {u"           Nationality:   ", Field::Nationality},
    {u"           Father Rec:    ", Field::FatherRec},
    {u"           Mother Rec:    ", Field::MotherRec},
    {u"           Birth date:    ", Field::BirthDate},
    {u"           Birth Place:   ", Field::BirthPlace},
    {u"           Spouse:        ", Field::Spouse},
    {u"           Children:      ", Field::Children},
    {u"           Partner:       ", Field::Partner},
    {u"           Wedding Date:  ", Field::WedDate},
    {u"           Wedding Place: ", Field::Wedding},
    {u"           Prev.Children: ", Field::PrevChildren},
    {u"           Education:     ", Field::Education, true},
    {u"           Profession:    ", Field::Profession, true},
    {u"           Deceased:      ", Field::Deceased},
    {u"           Birth Cert.    ", Field::BirthCertificate},
    {u"           Marriage Cert: ", Field::MarriageCertificate},
    {u"           Death Cert:    ", Field::DeathCertificate},
    {u"           Notes(1):      ", Field::Medical, true},
    {u"           Notes(2):      ", Field::Notes, true},
};

constexpr QStringView fileIndent = u"        ";
constexpr qsizetype paperIndent = 23;
constexpr qsizetype clipboardIndent = 33;

QString LineOf(const Recordset& record, const ReportLine& line)
{
    return line.Label + record.Text(line.Field);
}

void WriteWrapped(TextWriter& file, ScratchState& scratch, const QString& value)
{
    for (const QString& line : Wrapped(scratch, value))
        file.Line(fileIndent, line);
}

void PrintWrapped(Printer& printer, ScratchState& scratch, const QString& value)
{
    for (const QString& line : Wrapped(scratch, value))
        printer.PrintLine(QString(paperIndent, u' ') + line);
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

void WriteRecordToFile(const Recordset& record, const OutputState& output, ScratchState& scratch)
{
    if (record.Eof())
        return;
    Q_ASSERT(output.TextFile);
    TextWriter& file = *output.TextFile;
    file.Line(u"     ANCESTRAL RECORD ", record.Text(Field::File));
    file.Line({});
    for (const ReportLine& line : fileLines)
        file.Line(line.Label, record.Text(line.Field));
    file.Line(u"Notes(1):       ");
    WriteWrapped(file, scratch, record.Text(Field::Medical));
    // KEPT(RecordReportFileTest.FullRecord_HasEveryFieldOnItsLine): one blank fewer than its sister.
    // Mended, the line would differ from that of every report written so far.
    file.Line(u"Notes(2):      ");
    WriteWrapped(file, scratch, record.Text(Field::Notes));
    file.Line({});
}

void PrintRecord(Recordset& record, const OutputState& output, Printer& printer, ScratchState& scratch)
{
    if (record.Eof())
        return;
    printer.Font = {u"Arial"_s, 12, true};
    printer.PrintLine(u"        ANCESTRAL RECORD "_s + record.Text(Field::File));
    printer.PrintLine({});
    // Everything below stays bold, too.
    printer.Font.Size = 10;
    PrintLines(printer, record, namesOnPaper);
    PrintOrigin(printer, record);
    PrintLines(printer, record, lifeOnPaper);
    printer.PrintLine(u"           Notes(1):      "_s);
    PrintWrapped(printer, scratch, record.Text(Field::Medical));
    // The empty line stands below this one only.
    printer.PrintLine(u"           Notes(2):      "_s);
    printer.PrintLine({});
    PrintWrapped(printer, scratch, record.Text(Field::Notes));
    printer.PrintLine({});
    printer.PrintLine({});
    if (output.OutputMode != OutputMode::SingleToPrinter)
        record.MoveNext();
}

QString RecordAsText(Window<forms::Form3>& recordForm, ScratchState& scratch)
{
    const Recordset& record = Records(recordForm);
    Q_ASSERT(record.HasRow());
    QString text = u"           Data Ref:      "_s + recordForm->Label25.Caption.value() + u'\n';
    for (const ClipboardLine& line : clipboardLines) {
        const QString value = record.Text(line.Field);
        text += line.Label;
        text += line.IsWrapped ? Wrapped(scratch, value).join(u'\n' + QString(clipboardIndent, u' ')) : value;
        text += u'\n';
    }
    return text;
}

} // namespace lineforge
