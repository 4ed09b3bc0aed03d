#pragma once

#include "platform/base/FixedArray.h"
#include "platform/base/Number.h"
#include "platform/files/SequentialFile.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace lineforge
{

class GedSource;

// The values of `GedHeadState`.
namespace GedHead
{
inline constexpr int NotSeen = 0;
inline constexpr int Good = 1;
inline constexpr int Refused = 2;
} // namespace GedHead

// The conversion of a GEDCOM file to a text report. A character is a byte here. All of it stands from one run to the
// next but for what a run sets anew.
struct GedcomState {
    QString sGedFile;                           // full path of the source
    FixedArray<QByteArray, 0, 100> GedIndiList; // references, used from 1
    FixedArray<QByteArray, 0, 20> GedFamList;   // the same of families
    Integer16 GedIndiNext{1};                   // next free index of each list
    Integer16 GedFamNext{1};
    QByteArray sGedLine;
    QByteArray sGedLevel; // first character of the line; while indexing the character looked for
    QByteArray sGedTag;   // second field: the reference of a record's first line, else the tag
    QByteArray sGedValue; // third field, with the blank that ends it
    QByteArray sGedRest;  // what stands behind it
    QByteArray sSeekFor;
    QByteArray sGedStage; // "HUSB", "WIFE", "MARR" or "CHIL"
    QByteArray sGedIndi;  // reference of the individual at hand
    Integer16 GedHeadState;
    std::shared_ptr<GedSource> Source;      // the file read, number 1
    std::unique_ptr<SequentialFile> Report; // the file written, number 2; none while it is closed
};

} // namespace lineforge
