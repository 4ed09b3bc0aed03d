#pragma once

#include "gedcom/writer/LineageSearch.h"

namespace lineforge
{

// Thrown out of a yield after which the branch is no longer open whose records are being collected.
struct LineageAbandoned {
};

// Fills the table of the lineage from the record number in `Text7` of `Form12`: the line of forebears, their offspring,
// and the mothers of those; `sLineageCount` becomes the length of the line. Tells of it in the window's panel. The
// cursor stays where the last search has left it. Error 9 where the table has no room, and those of the database.
void CollectLineage(const LineageSearch& search);

// Whether the open branch's own database is what the records are read from.
[[nodiscard]] bool ReadsOpenBranch(const BranchState& branch, Window<forms::Form3>& recordForm);

// What follows most of the panel's lines: yields. LineageAbandoned when the branch has been left meanwhile.
void LineageStep(const LineageSearch& search);

} // namespace lineforge
