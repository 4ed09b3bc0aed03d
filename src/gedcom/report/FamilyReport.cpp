#include "gedcom/report/FamilyReport.h"

#include "gedcom/report/GedFields.h"
#include "gedcom/report/GedSeek.h"
#include "gedcom/report/GedSource.h"
#include "gedcom/report/ReportLines.h"

namespace lineforge
{

namespace
{
void Seek(Program& p, const QByteArray& tag)
{
    p.Gedcom.sSeekFor = tag;
    GedSeek(p);
}

void PutAndStep(Program& p, ReportLine line, QByteArrayView content = {})
{
    PutLine(p, line, content);
    ConvertStep(p);
}

// Value and rest of a line are the text that the parsing has cut in two.
QByteArray WholeValue(const GedcomState& gedcom)
{
    return QByteArray(gedcom.sGedValue + gedcom.sGedRest);
}

void ReportName(Program& p)
{
    Seek(p, "NAME");
    Seek(p, "GIVN");
    const QByteArray given = p.Gedcom.sGedValue;
    Seek(p, "SURN");
    PutAndStep(p, ReportLine::Name, QByteArray(given + "  " + p.Gedcom.sGedValue));
}

void ReportGender(Program& p)
{
    Seek(p, "SEX");
    PutAndStep(p, SameBytes(p.Gedcom.sGedValue, "M") ? ReportLine::Male : ReportLine::Female);
}

void ReportBirth(Program& p)
{
    Seek(p, "BIRT");
    if (SameBytes(p.Gedcom.sGedTag, "BIRT")) {
        Seek(p, "DATE");
        PutLine(p, ReportLine::BirthDate, WholeValue(p.Gedcom));
        Seek(p, "PLAC");
        PutLine(p, ReportLine::BirthPlace, WholeValue(p.Gedcom));
    } else {
        CloseGedSource(p);
        OpenGedSource(p);
        p.Scratch.ScanState = GedRecord::Outside;
        Seek(p, p.Gedcom.sGedIndi);
    }
    ConvertStep(p);
}

void ReportChristening(Program& p)
{
    Seek(p, "CHR");
    if (!SameBytes(p.Gedcom.sGedTag, "CHR"))
        return;
    Seek(p, "DATE");
    PutAndStep(p, ReportLine::ChristeningDate, WholeValue(p.Gedcom));
    Seek(p, "PLAC");
    PutAndStep(p, ReportLine::ChristeningPlace, WholeValue(p.Gedcom));
}

// The one whose reference the last seek has found.
// KEPT(GedcomReportTest.ANameWithoutItsParts_IsTakenFromTheRecordsBehind): each seek goes on where the one before has
// stopped, into the next record where a line was missing.
// Mended, a report would leave empty what it takes from the next person now.
void ReportIndividual(Program& p)
{
    CloseGedSource(p);
    p.Gedcom.sGedIndi = p.Gedcom.sGedValue;
    OpenGedSource(p);
    Seek(p, p.Gedcom.sGedIndi);
    ReportName(p);
    ReportGender(p);
    ReportBirth(p);
    ReportChristening(p);
    PutLine(p, ReportLine::EndOfIndividual);
}

// False: what the stage is about isn't in the family.
bool SeekStage(Program& p, int family, int occurrence)
{
    GedcomState& gedcom = p.Gedcom;
    gedcom.sSeekFor = gedcom.GedFamList[family];
    OpenGedSource(p);
    p.Scratch.ScanState = GedRecord::Outside;
    GedSeek(p);
    gedcom.sSeekFor = gedcom.sGedStage;
    if (occurrence > 1)
        GedSeekChild(p, occurrence);
    else
        GedSeek(p);
    return !(gedcom.sGedLine.startsWith('0') && p.Scratch.ScanState == GedRecord::Inside);
}

void PutMarriage(Program& p)
{
    Seek(p, "DATE");
    PutAndStep(p, ReportLine::Marriage);
    PutAndStep(p, ReportLine::MarriageDate, WholeValue(p.Gedcom));
    Seek(p, "PLAC");
    PutAndStep(p, ReportLine::MarriagePlace, WholeValue(p.Gedcom));
}

// Head of the family. He may be missing, the lines above him never.
void ReportHusband(Program& p, int family)
{
    const bool isThere = SeekStage(p, family, 1);
    PutLine(p, ReportLine::FamilyRule);
    PutAndStep(p, ReportLine::Family, QByteArray::number(family));
    if (isThere)
        ReportIndividual(p);
    CloseGedSource(p);
    p.Gedcom.sGedStage = "WIFE";
    PutAndStep(p, ReportLine::Spouse);
}

bool ReportWife(Program& p, int family)
{
    const bool isThere = SeekStage(p, family, 1);
    if (isThere)
        ReportIndividual(p);
    CloseGedSource(p);
    p.Gedcom.sGedStage = "MARR";
    return isThere;
}

void ReportMarriage(Program& p, int family)
{
    if (SeekStage(p, family, 1))
        PutMarriage(p);
    CloseGedSource(p);
    p.Gedcom.sGedStage = "CHIL";
}

void ReportChildren(Program& p, int family)
{
    for (Integer16 occurrence{1}; SeekStage(p, family, occurrence); occurrence += 1) {
        if (occurrence == 1)
            PutAndStep(p, ReportLine::Children);
        ReportIndividual(p);
        CloseGedSource(p);
    }
    CloseGedSource(p);
}
} // namespace

void OpenGedSource(Program& p)
{
    GedcomState& gedcom = p.Gedcom;
    if (!gedcom.Source)
        gedcom.Source = std::make_shared<GedSource>(p.Files.Read(gedcom.sGedFile));
    gedcom.Source->Open();
}

void CloseGedSource(Program& p)
{
    if (p.Gedcom.Source)
        p.Gedcom.Source->Close();
}

void ReportFamily(Program& p, int family)
{
    GedcomState& gedcom = p.Gedcom;
    gedcom.sGedStage = "HUSB";
    ReportHusband(p, family);
    if (ReportWife(p, family)) {
        ReportMarriage(p, family);
        ReportChildren(p, family);
    }
    gedcom.sGedStage = "HUSB";
    gedcom.sGedValue.clear();
    gedcom.sGedTag.clear();
}

} // namespace lineforge
