#pragma once

#include "platform/base/FixedArray.h"
#include "platform/base/Number.h"
#include "platform/files/SequentialFile.h"

#include <QString>

#include <memory>

namespace lineforge
{

// The columns of a row of the lineage's table: numbers of records, and "Fam" or nothing in the first.
namespace LineageColumn
{
inline constexpr int Fam = 0;  // all offspring have one mother
inline constexpr int Indi = 1; // whose row it is; an empty one ends the table
inline constexpr int Spse = 2;
inline constexpr int Pa = 3;
inline constexpr int Ma = 4;
inline constexpr int Sib1 = 5; // the first of six offspring
inline constexpr int Sib4 = 8;
inline constexpr int Last = 14; // nothing is ever put behind the six, which ends them
} // namespace LineageColumn

// The lineage that goes with a GEDCOM file.
struct LineageState {
    static constexpr int LastRow = 99;
    static constexpr int LastMother = 10;
    using Row = FixedArray<QString, 0, LineageColumn::Last>;

    FixedArray<Row, 0, LastRow> LineageArr;
    FixedArray<QString, 0, LastMother> MaArray; // the mothers of a row's offspring, in their order
    Integer16 MaDiffer;                         // how often two neighbours there differ
    QString sLineageCount;                      // rows of the line of forebears
    std::unique_ptr<SequentialFile> File;       // the one that is being written
};

} // namespace lineforge
