#include "gedcom/writer/GedcomWriter.h"

#include "forms/Form12.h"
#include "gedcom/writer/Lineage.h"
#include "program/ui/BranchUi.h"
#include "program/ui/ProgressPanel.h"

#include <span>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
template <TextBox forms::Form12::*Box>
QString TextOf(const GedcomWriting& writing)
{
    return ((*writing.Form12).*Box).Text;
}

enum class When { Always, IfFilled, IfFilledThenStep };

struct FileLine {
    QStringView Text;
    QString (*Value)(const GedcomWriting& writing) = nullptr; // what follows it
    When Condition = When::Always;
    QStringView Shown = {}; // in the panel, where that differs
};

// KEPT(GedcomWriterTest.WholeFile_AsItStandsOnDisk): there is a comma before "3 ADDR", date and time have no value, the
// file's name is that of the subject's picture, and the date of the data is always the same.
// Mended, files would begin otherwise than all that have been written.
constexpr FileLine head[] = {
    {u"0 HEAD"},
    {u"1 SOUR"},
    {u"2 NAME Tarnwick.Exe software"},
    {u"2 VERS 1.2"},
    {u"2 CORP Tarnwick Technology"},
    {u",3 ADDR Westholme, Marsh End,", nullptr, When::Always, u"3 ADDR Westholme, Marsh End,"},
    {u"4 CONT Marshland, XX, AB12 3CD"},
    {u"2 DATA"},
    {u"3 DATE May 2001"},
    {u"3 COPY Copyright 2001 Tarnwick Technology"},
    {u"1 DEST PAF"},
    {u"1 DATE "},
    {u"2 TIME "},
    {u"1 FILE ", [](const GedcomWriting& writing) { return writing.Record.sPicFile; }},
    {u"1 GEDC"},
    {u"2 VERS GEDCOM 5.5"},
    {u"2 FORM LINEAGE-LINKED"},
    {u"1 CHAR ANSEL"},
    {u"1 SUBM @SUB01@"},
    {u"1 SUBN @N01@"},
    {u"0 @SUB01@ SUBM"},
    {u"1 NAME Created by ", TextOf<&forms::Form12::Text1>},
    {u"1 ADDR ", TextOf<&forms::Form12::Text2>},
    {u"2 CONT ", TextOf<&forms::Form12::Text3>, When::IfFilled},
    {u"2 CONT ", TextOf<&forms::Form12::Text4>, When::IfFilled},
    {u"2 PHON ", TextOf<&forms::Form12::Text5>, When::IfFilledThenStep},
};

constexpr FileLine tail[] = {
    {u"0 @N01@ SUBN"},
    {u"1 DESC ", [](const GedcomWriting& writing) { return writing.State.sLineageCount; }},
    {u"1 ORDI N"},
    {u"0 TRLR"},
};

void PutLine(const GedcomWriting& writing, const FileLine& line)
{
    const QString value = line.Value ? line.Value(writing) : QString();
    if (line.Condition != When::Always && value.isEmpty())
        return;
    writing.State.File->Line(QString(line.Text + value));
    writing.Form12->Picture1.Print(QString((line.Shown.isEmpty() ? line.Text : line.Shown) + value));
    if (line.Condition == When::IfFilledThenStep)
        LineageStep(writing);
}

void PutLines(const GedcomWriting& writing, std::span<const FileLine> lines)
{
    for (const FileLine& line : lines)
        PutLine(writing, line);
}

struct Requirement {
    bool (*IsMet)(const forms::Form12& form);
    QStringView Title;
    QStringView Text;
};

constexpr int recordNumberLength = 4;

constexpr Requirement requirements[] = {
    {[](const forms::Form12& form) { return !form.Text1.Text.value().isEmpty(); }, u"Incomplete Name",
     u"Must complete Submitter Name."},
    {[](const forms::Form12& form) { return !form.Text2.Text.value().isEmpty(); }, u"Incomplete Address",
     u"Must complete Submitter Address."},
    {[](const forms::Form12& form) { return form.Text7.Text.value().size() == recordNumberLength; },
     u"Incomplete Record number", u"Must complete Record number."},
};

// Tells of the first that isn't met; false when all are.
bool TellIfIncomplete(const GedcomWriting& writing)
{
    for (const Requirement& requirement : requirements)
        if (!requirement.IsMet(*writing.Form12)) {
            writing.Prompts.MsgBox(requirement.Title.toString(), requirement.Text.toString(), Buttons::Information);
            return true;
        }
    return false;
}

void CloseGedcomFile(LineageState& lineage)
{
    const std::unique_ptr<SequentialFile> file = std::move(lineage.File);
    file->Close();
}

// Without its last lines it would pass for a whole one; with the branch it may have gone already.
void KillUnfinished(const GedcomWriting& writing, const QString& path)
{
    writing.State.File.reset();
    writing.Errors.Ignoring([&] { writing.Files.Kill(path); });
}

void DropUnfinished(const GedcomWriting& writing, const QString& path)
{
    KillUnfinished(writing, path);
    writing.Prompts.MsgBox(u"GedCom File"_s, u"The Tree Branch was left before the GedCom file was complete."_s,
                           Buttons::Information);
}
} // namespace

void ShowGedcomForm(Window<forms::Form12>& window)
{
    window->Show();
    window->Picture1.Cls();
}

void LoadGedcomForm(forms::Form12& form, const Screen& screen, Window<forms::Form3>& recordForm)
{
    FillScreen(form, screen, recordForm, 700);
    form.Caption = u"Create GEDCOM file"_s;
}

void ResetGedcomForm(forms::Form12& form)
{
    for (TextBox* box : form.Texts())
        box->Text = QString();
}

void CreateGedcomFile(const GedcomWriting& writing)
{
    if (writing.State.File)
        return;
    writing.Form12->Picture1.Cls();
    writing.Form12->VScroll1.Value = 0;
    if (TellIfIncomplete(writing) || TellIfNoBranch(writing.Branch, writing.Form3, writing.Prompts))
        return;
    // A deletion has left the branch's name, and no more.
    if (!ReadsOpenBranch(writing.Branch, writing.Form3))
        return TellNoBranch(writing.Prompts);
    WriteGedcomFile(writing);
}

void WriteGedcomFile(const GedcomWriting& writing)
{
    const QString path = writing.Branch.WorkDir + PathSeparator + u"Gedcom.tmp";
    writing.Scratch.sFileA = path;
    writing.Form12->Picture1.Cls();
    writing.Form12->Picture1.Print(QString(u"   Data placed in directory " + path));
    writing.Form12->Picture1.Print();
    writing.State.File = std::make_unique<SequentialFile>(writing.Files, path);
    try {
        PutLines(writing, head);
        CollectLineage(writing);
        PutLines(writing, tail);
        KeepLastLineInView(writing.Form12->Picture1, writing.Form12->VScroll1);
        CloseGedcomFile(writing.State);
    } catch (const LineageAbandoned&) {
        DropUnfinished(writing, path);
    } catch (const RuntimeError& refusal) {
        if (refusal.IsTold)
            KillUnfinished(writing, path);
        throw;
    } catch (const ProgramEnded&) {
        // After an unmet error the file has been closed, and stays with what it holds.
        if (writing.State.File)
            KillUnfinished(writing, path);
        throw;
    }
}

} // namespace lineforge
