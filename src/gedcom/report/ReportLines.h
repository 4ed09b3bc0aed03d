#pragma once

#include "gedcom/report/GedReport.h"

#include <QByteArrayView>

namespace lineforge
{

// The lines of a report. Text file and panel differ in rules, empty lines and carriage returns.
enum class ReportLine {
    Empty,
    Heading,      // content: the source's path
    PanelHeading, // the same
    PanelPlace,   // content: the report's path
    FamilyRule,
    Family, // content: the family's place in the list
    Name,
    Male,
    Female,
    BirthDate,
    BirthPlace,
    ChristeningDate,
    ChristeningPlace,
    EndOfIndividual,
    Spouse,
    Marriage,
    MarriageDate,
    MarriagePlace,
    Children,
    Complete,
};

// Writes the line to the report's file and shows it in the panel, each where the line belongs there; the panel only as
// long as its window is open. Error 52 when the file isn't open, and errors of the disk.
void PutLine(const GedReport& report, ReportLine line, QByteArrayView content = {});

// Yields, and lets the panel follow its text.
void ConvertStep(const GedReport& report);

} // namespace lineforge
