#pragma once

#include "gedcom/report/GedReport.h"

namespace lineforge
{

// Cuts `sGedLine` into level, tag, value and rest. A line without a value leaves the value as it was.
void GedParseLine(GedcomState& gedcom);

// Reads on from where the source stands to the next line whose tag is `sSeekFor`, or to the end of the record while
// `ScanState` is 1, or to the end of the source; the line's parts are left in the state, `ScanState` says whether the
// source stands inside a record. A seek for "CHIL" ends at any record and puts an empty line into the report. Error 62
// when the source ends in a line end behind less than four characters; 52 when source or report aren't open.
void GedSeek(const GedReport& report);

// As many seeks for "CHIL", which `sSeekFor` holds, one after another; at least one.
void GedSeekChild(const GedReport& report, int times);

// Collects the references of individuals and families from the start of the open source; which are found depends on
// the zeros in its text. False: the first thing in it isn't "HEAD", and the rest hasn't been read. Error 9 when a list
// is full, 62 when the source ends behind a blank in a record's first line.
bool GedIndexFile(GedcomState& gedcom, Integer16& scanState);

} // namespace lineforge
