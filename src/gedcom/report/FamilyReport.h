#pragma once

#include "gedcom/report/GedReport.h"

namespace lineforge
{

// The source as the run has it open: read whole at the first opening. Errors of the disk, 53 among them, and 55.
void OpenGedSource(const GedReport& report);
void CloseGedSource(GedcomState& gedcom);

// Reports one family: its head, the spouse, the marriage, the children in their order. A family without a wife loses
// what follows her. Errors of source and report; 62 where a reference isn't in a source that ends in two line ends;
// 6 when the children never end.
void ReportFamily(const GedReport& report, int family);

} // namespace lineforge
