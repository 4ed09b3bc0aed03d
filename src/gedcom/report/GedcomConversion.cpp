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
bool Accept(const GedConversion& conversion, const QString& path)
{
    if (conversion.Files.Dir(path).isEmpty()) {
        conversion.Prompts.MsgBox(u"File not present."_s, u"File not found."_s, Buttons::Information);
        return false;
    }
    if (!SameText(QStringView(path).right(extension.size()), extension)) {
        conversion.Prompts.MsgBox(u"Not a GedFile."_s, u"Must select a Gedcom file."_s, Buttons::Information);
        return false;
    }
    return true;
}

void ShowWindow(const GedConversion& conversion, const QString& path)
{
    forms::Form11& form = *conversion.Form11;
    form.Caption = u"Processing: "_s + path;
    form.Picture1.Height = 6400;
    form.Picture1.Top = 0;
    form.Picture1.Cls();
    form.VScroll1.Max = 0;
    form.VScroll1.Value = 0;
    form.Show();
    conversion.Loop.DoEvents();
    conversion.Screen.Pointer = MousePointer::Hourglass;
}

// A report that is a link to its own source would empty it.
bool AreOneFile(const FileSystem& files, const QString& a, const QString& b)
{
    const FileIdentity first = IdentityOf(files.Resolve(a));
    const FileIdentity second = IdentityOf(files.Resolve(b));
    return first.File != 0 && first.File == second.File && first.Device == second.Device;
}

void OpenReport(const GedConversion& conversion, const QString& path)
{
    if (AreOneFile(conversion.Files, conversion.State.sGedFile, path))
        throw RuntimeError(ErrorNumber::FileAlreadyOpen, path);
    conversion.State.Report = std::make_unique<SequentialFile>(conversion.Files, path);
}

void Refuse(const GedConversion& conversion)
{
    conversion.Prompts.MsgBox(u"GedFile 'HEAD' not present."_s, u"File format problem."_s, Buttons::Information);
    conversion.Form11.Unload();
    conversion.Screen.Pointer = MousePointer::Default;
    CloseConversionFiles(conversion.State, conversion.Errors);
    conversion.State.GedHeadState = GedHead::Refused;
}

// False: the source was refused. The lists are emptied here, behind the yields, so that a run never goes on with those
// of another one that has come in between.
bool Index(const GedConversion& conversion)
{
    GedcomState& gedcom = conversion.State;
    gedcom.GedIndiList.Erase();
    gedcom.GedFamList.Erase();
    gedcom.sGedTag.clear();
    gedcom.GedHeadState = GedHead::NotSeen;
    gedcom.GedIndiNext = 1;
    gedcom.GedFamNext = 1;
    gedcom.sGedLevel = "0";
    OpenGedSource(conversion);
    if (!GedIndexFile(gedcom, conversion.Scratch.ScanState)) {
        Refuse(conversion);
        return false;
    }
    CloseGedSource(gedcom);
    return true;
}

// One family further than there are.
// KEPT(GedcomConversionTest.FewerFamilies_EndByReadingPastTheEnd): the seek for the reference that isn't there is what
// ends a run, by an error.
// Mended, the report of a source whose lines end in one character would lack the family of nobodies at its end.
void ReportFamilies(const GedConversion& conversion)
{
    const int count = conversion.State.GedFamNext;
    for (int family = 1; family <= count; ++family)
        ReportFamily(conversion, family);
}

// False: the source was refused. The paths are the run's own, since a handler that runs at a yield may use the scratch
// that holds them for other files.
bool Convert(const GedConversion& conversion, const QString& source, const QString& report)
{
    ShowWindow(conversion, source);
    conversion.State.sGedFile = source;
    OpenReport(conversion, report);
    const auto ended = qScopeGuard([&conversion] { CloseConversionFiles(conversion.State, conversion.Errors); });
    PutLine(conversion, ReportLine::Heading, source.toUtf8());
    if (!Index(conversion))
        return false;
    if (conversion.State.GedHeadState == GedHead::Good) {
        PutLine(conversion, ReportLine::PanelHeading, source.toUtf8());
        PutLine(conversion, ReportLine::PanelPlace, report.toUtf8());
    }
    ReportFamilies(conversion);
    return true;
}

void Complete(const GedConversion& conversion)
{
    CloseConversionFiles(conversion.State, conversion.Errors);
    PutLine(conversion, ReportLine::Complete);
    ConvertStep(conversion);
    if (conversion.Form11.IsLoaded())
        conversion.Form11->Caption = u"Ged File Conversion completed."_s;
    conversion.Screen.Pointer = MousePointer::Default;
}
} // namespace

void ConvertGedcom(const GedConversion& conversion)
{
    const std::optional<QString> chosen =
        conversion.Prompts.OpenFile({u"Select Import GedCom File"_s, u"GedCom *.ged|*.ged|All Files|*.*|"_s});
    if (!chosen || !Accept(conversion, *chosen))
        return;
    const QString report = chosen->chopped(extension.size()) + u"txt";
    conversion.Scratch.sFileB = report;
    conversion.Prompts.MsgBox(
        *chosen + u" Gedcom file selected.",
        u"The selected Gedcom file will be re formatted and\nplaced in the above directory as a text file."_s,
        Buttons::Information);
    // Chosen in a yield of another run, whose files and window these are: it is the one that goes on.
    if (conversion.State.Report)
        return;
    bool isComplete = true;
    conversion.Errors.Ignoring([&] { isComplete = Convert(conversion, *chosen, report); });
    if (isComplete)
        Complete(conversion);
}

void CloseConversionFiles(GedcomState& gedcom, ErrorState& errors)
{
    if (const std::unique_ptr<SequentialFile> report = std::move(gedcom.Report))
        errors.Ignoring([&] { report->Close(); });
    gedcom.Source.reset();
}

void CentreConversion(forms::Form11& form, const forms::Form1& around)
{
    form.Left = around.Left + around.Width / 2 - form.Width / 2;
    form.Top = around.Top + around.Height / 2 - form.Height / 2;
}

} // namespace lineforge
