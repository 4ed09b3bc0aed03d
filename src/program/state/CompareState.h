#pragma once

#include "platform/base/FixedArray.h"
#include "platform/base/Number.h"
#include "platform/store/Recordset.h"

#include <QString>

namespace lineforge
{

// Whom one side of the comparison shows. Numbers don't tell: two people may have the same.
struct ShownRecord {
    QString Directory; // of the branch
    Bookmark Record;   // none: nobody
    friend bool operator==(const ShownRecord&, const ShownRecord&) = default;
};

// The comparison of the open branch with another one.
struct CompareState {
    QString sCompDbFile; // "LfgDat_B.mdb"
    QString sCompDir;    // with a trailing separator
    QString sCompName;
    Integer16 SearchMask;    // the keys that a pair must agree on, see `CompareKey`
    bool IsChoosing = false; // a compare branch is asked for in the list of branches
    Integer16 FieldStep;     // where the search for differences goes on: 0 and 1 at the first field, 23 behind the last
    Integer16 SearchEnded;   // 1: a recordset has run out
    bool HasEnded() const { return SearchEnded == 1; }
    Integer16 ResetDone; // 1 from Reset to the next Search
    bool IsReset() const { return ResetDone == 1; }
    QString sCompField; // the field on show
    QString sSelText;   // selected at the last click in a box of the window
    Integer16 SelBox;   // that box's number, 1 to 4, 0 for none
    ShownRecord ShownCurrent;
    ShownRecord ShownCompare;
    // The numbers of appended records that have been seen, as long as the window lives.
    FixedArray<QString, 0, 99> ZNumberTable;
};

} // namespace lineforge
