#include "gedcom/report/GedcomConversion.h"

#include "forms/Form1.h"
#include "forms/Form11.h"
#include "gedcom/report/FamilyReport.h"
#include "gedcom/report/GedSeek.h"
#include "gedcom/report/ReportLines.h"
#include "platform/base/Text.h"
#include "platform/files/FileIdentity.h"

#include <QScopeGuard>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QString extension = u"Ged"_s;

// Whether the path is that of a GEDCOM file that is there; tells when it isn't.
bool Accept(Program& p, const QString& path)
{
    if (p.Files.Dir(path).isEmpty()) {
        p.Prompts.MsgBox(u"File not present."_s, u"File not found."_s, Buttons::Information);
        return false;
    }
    if (!SameText(QStringView(path).right(extension.size()), extension)) {
        p.Prompts.MsgBox(u"Not a GedFile."_s, u"Must select a Gedcom file."_s, Buttons::Information);
        return false;
    }
    return true;
}

void ShowWindow(Program& p, const QString& path)
{
    forms::Form11& form = *p.Form11;
    form.Caption = u"Processing: "_s + path;
    form.Picture1.Height = 6400;
    form.Picture1.Top = 0;
    form.Picture1.Cls();
    form.VScroll1.Max = 0;
    form.VScroll1.Value = 0;
    form.Show();
    p.Loop.DoEvents();
    p.Screen.Pointer = MousePointer::Hourglass;
}

// A report that is a link to its own source would empty it.
bool AreOneFile(const Program& p, const QString& a, const QString& b)
{
    const FileIdentity first = IdentityOf(p.Files.Resolve(a));
    const FileIdentity second = IdentityOf(p.Files.Resolve(b));
    return first.File != 0 && first.File == second.File && first.Device == second.Device;
}

void OpenReport(Program& p, const QString& path)
{
    if (AreOneFile(p, p.Gedcom.sGedFile, path))
        throw RuntimeError(ErrorNumber::FileAlreadyOpen, path);
    p.Gedcom.Report = std::make_unique<SequentialFile>(p.Files, path);
}

void Refuse(Program& p)
{
    p.Prompts.MsgBox(u"GedFile 'HEAD' not present."_s, u"File format problem."_s, Buttons::Information);
    p.Form11.Unload();
    p.Screen.Pointer = MousePointer::Default;
    CloseConversionFiles(p);
    p.Gedcom.GedHeadState = GedHead::Refused;
}

// False: the source was refused. The lists are emptied here, behind the yields, so that a run never goes on with those
// of another one that has come in between.
bool Index(Program& p)
{
    GedcomState& gedcom = p.Gedcom;
    gedcom.GedIndiList.Erase();
    gedcom.GedFamList.Erase();
    gedcom.sGedTag.clear();
    gedcom.GedHeadState = GedHead::NotSeen;
    gedcom.GedIndiNext = 1;
    gedcom.GedFamNext = 1;
    gedcom.sGedLevel = "0";
    OpenGedSource(p);
    if (!GedIndexFile(p)) {
        Refuse(p);
        return false;
    }
    CloseGedSource(p);
    return true;
}

// One family further than there are.
// KEPT(GedcomConversionTest.FewerFamilies_EndByReadingPastTheEnd): the seek for the reference that isn't there is what
// ends a run, by an error.
// Mended, the report of a source whose lines end in one character would lack the family of nobodies at its end.
void ReportFamilies(Program& p)
{
    const int count = p.Gedcom.GedFamNext;
    for (int family = 1; family <= count; ++family)
        ReportFamily(p, family);
}

// False: the source was refused. The paths are the run's own, since a handler that runs at a yield may use the scratch
// that holds them for other files.
bool Convert(Program& p, const QString& source, const QString& report)
{
    ShowWindow(p, source);
    p.Gedcom.sGedFile = source;
    OpenReport(p, report);
    const auto ended = qScopeGuard([&p] { CloseConversionFiles(p); });
    PutLine(p, ReportLine::Heading, source.toUtf8());
    if (!Index(p))
        return false;
    if (p.Gedcom.GedHeadState == GedHead::Good) {
        PutLine(p, ReportLine::PanelHeading, source.toUtf8());
        PutLine(p, ReportLine::PanelPlace, report.toUtf8());
    }
    ReportFamilies(p);
    return true;
}

void Complete(Program& p)
{
    CloseConversionFiles(p);
    PutLine(p, ReportLine::Complete);
    ConvertStep(p);
    if (p.Form11.IsLoaded())
        p.Form11->Caption = u"Ged File Conversion completed."_s;
    p.Screen.Pointer = MousePointer::Default;
}
} // namespace

void ConvertGedcom(Program& p)
{
    const std::optional<QString> chosen =
        p.Prompts.OpenFile({u"Select Import GedCom File"_s, u"GedCom *.ged|*.ged|All Files|*.*|"_s});
    if (!chosen || !Accept(p, *chosen))
        return;
    const QString report = chosen->chopped(extension.size()) + u"txt";
    p.Scratch.sFileB = report;
    p.Prompts.MsgBox(
        *chosen + u" Gedcom file selected.",
        u"The selected Gedcom file will be re formatted and\nplaced in the above directory as a text file."_s,
        Buttons::Information);
    // Chosen in a yield of another run, whose files and window these are: it is the one that goes on.
    if (p.Gedcom.Report)
        return;
    bool isComplete = true;
    p.Errors.Ignoring([&] { isComplete = Convert(p, *chosen, report); });
    if (isComplete)
        Complete(p);
}

void CloseConversionFiles(Program& p)
{
    if (const std::unique_ptr<SequentialFile> report = std::move(p.Gedcom.Report))
        p.Errors.Ignoring([&] { report->Close(); });
    p.Gedcom.Source.reset();
}

void CentreConversion(Program& p)
{
    forms::Form11& form = *p.Form11;
    const forms::Form1& around = *p.Form1;
    form.Left = around.Left + around.Width / 2 - form.Width / 2;
    form.Top = around.Top + around.Height / 2 - form.Height / 2;
}

} // namespace lineforge
