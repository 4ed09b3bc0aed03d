#include "gedcom/report/FamilyReport.h"

#include "gedcom/report/GedFields.h"
#include "gedcom/report/GedSeek.h"
#include "gedcom/report/GedSource.h"
#include "gedcom/report/ReportLines.h"

namespace lineforge
{

namespace
{
void Seek(const GedReport& report, const QByteArray& tag)
{
    report.State.sSeekFor = tag;
    GedSeek(report);
}

void PutAndStep(const GedReport& report, ReportLine line, QByteArrayView content = {})
{
    PutLine(report, line, content);
    ConvertStep(report);
}

// Value and rest of a line are the text that the parsing has cut in two.
QByteArray WholeValue(const GedcomState& gedcom)
{
    return QByteArray(gedcom.sGedValue + gedcom.sGedRest);
}

void ReportName(const GedReport& report)
{
    Seek(report, "NAME");
    Seek(report, "GIVN");
    const QByteArray given = report.State.sGedValue;
    Seek(report, "SURN");
    PutAndStep(report, ReportLine::Name, QByteArray(given + "  " + report.State.sGedValue));
}

void ReportGender(const GedReport& report)
{
    Seek(report, "SEX");
    PutAndStep(report, SameBytes(report.State.sGedValue, "M") ? ReportLine::Male : ReportLine::Female);
}

void ReportBirth(const GedReport& report)
{
    Seek(report, "BIRT");
    if (SameBytes(report.State.sGedTag, "BIRT")) {
        Seek(report, "DATE");
        PutLine(report, ReportLine::BirthDate, WholeValue(report.State));
        Seek(report, "PLAC");
        PutLine(report, ReportLine::BirthPlace, WholeValue(report.State));
    } else {
        CloseGedSource(report.State);
        OpenGedSource(report);
        report.Scratch.ScanState = GedRecord::Outside;
        Seek(report, report.State.sGedIndi);
    }
    ConvertStep(report);
}

void ReportChristening(const GedReport& report)
{
    Seek(report, "CHR");
    if (!SameBytes(report.State.sGedTag, "CHR"))
        return;
    Seek(report, "DATE");
    PutAndStep(report, ReportLine::ChristeningDate, WholeValue(report.State));
    Seek(report, "PLAC");
    PutAndStep(report, ReportLine::ChristeningPlace, WholeValue(report.State));
}

// The one whose reference the last seek has found.
// KEPT(GedcomReportTest.ANameWithoutItsParts_IsTakenFromTheRecordsBehind): each seek goes on where the one before has
// stopped, into the next record where a line was missing.
// Mended, a report would leave empty what it takes from the next person now.
void ReportIndividual(const GedReport& report)
{
    CloseGedSource(report.State);
    report.State.sGedIndi = report.State.sGedValue;
    OpenGedSource(report);
    Seek(report, report.State.sGedIndi);
    ReportName(report);
    ReportGender(report);
    ReportBirth(report);
    ReportChristening(report);
    PutLine(report, ReportLine::EndOfIndividual);
}

// False: what the stage is about isn't in the family.
bool SeekStage(const GedReport& report, int family, int occurrence)
{
    GedcomState& gedcom = report.State;
    gedcom.sSeekFor = gedcom.GedFamList[family];
    OpenGedSource(report);
    report.Scratch.ScanState = GedRecord::Outside;
    GedSeek(report);
    gedcom.sSeekFor = gedcom.sGedStage;
    if (occurrence > 1)
        GedSeekChild(report, occurrence);
    else
        GedSeek(report);
    return !(gedcom.sGedLine.startsWith('0') && report.Scratch.ScanState == GedRecord::Inside);
}

void PutMarriage(const GedReport& report)
{
    Seek(report, "DATE");
    PutAndStep(report, ReportLine::Marriage);
    PutAndStep(report, ReportLine::MarriageDate, WholeValue(report.State));
    Seek(report, "PLAC");
    PutAndStep(report, ReportLine::MarriagePlace, WholeValue(report.State));
}

// Head of the family. He may be missing, the lines above him never.
void ReportHusband(const GedReport& report, int family)
{
    const bool isThere = SeekStage(report, family, 1);
    PutLine(report, ReportLine::FamilyRule);
    PutAndStep(report, ReportLine::Family, QByteArray::number(family));
    if (isThere)
        ReportIndividual(report);
    CloseGedSource(report.State);
    report.State.sGedStage = "WIFE";
    PutAndStep(report, ReportLine::Spouse);
}

bool ReportWife(const GedReport& report, int family)
{
    const bool isThere = SeekStage(report, family, 1);
    if (isThere)
        ReportIndividual(report);
    CloseGedSource(report.State);
    report.State.sGedStage = "MARR";
    return isThere;
}

void ReportMarriage(const GedReport& report, int family)
{
    if (SeekStage(report, family, 1))
        PutMarriage(report);
    CloseGedSource(report.State);
    report.State.sGedStage = "CHIL";
}

void ReportChildren(const GedReport& report, int family)
{
    for (Integer16 occurrence{1}; SeekStage(report, family, occurrence); occurrence += 1) {
        if (occurrence == 1)
            PutAndStep(report, ReportLine::Children);
        ReportIndividual(report);
        CloseGedSource(report.State);
    }
    CloseGedSource(report.State);
}
} // namespace

void OpenGedSource(const GedReport& report)
{
    GedcomState& gedcom = report.State;
    if (!gedcom.Source)
        gedcom.Source = std::make_shared<GedSource>(report.Files.Read(gedcom.sGedFile));
    gedcom.Source->Open();
}

void CloseGedSource(GedcomState& gedcom)
{
    if (gedcom.Source)
        gedcom.Source->Close();
}

void ReportFamily(const GedReport& report, int family)
{
    GedcomState& gedcom = report.State;
    gedcom.sGedStage = "HUSB";
    ReportHusband(report, family);
    if (ReportWife(report, family)) {
        ReportMarriage(report, family);
        ReportChildren(report, family);
    }
    gedcom.sGedStage = "HUSB";
    gedcom.sGedValue.clear();
    gedcom.sGedTag.clear();
}

} // namespace lineforge
