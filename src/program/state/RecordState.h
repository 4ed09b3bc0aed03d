#pragma once

#include "platform/base/Number.h"
#include "platform/store/Recordset.h"

#include <QString>

namespace lineforge
{

struct RecordState {
    QString sCurFile; // `File` of the record at hand
    QString sPicFile; // and its picture's name
    QString sPicSuffix;
    QString sForeName;
    QString sAltName;         // forename of a record of another branch
    QString sShownName;       // forename when the map last opened the record form
    QString sClipText;        // selected at the last click in a box of the record form
    Integer16 ClipSource;     // that box's number, 0 for none
    Integer16 RecordScanMode; // 1 fast forward, 2 forward, 3 stopped, 4 back, 5 fast back
    Bookmark SavedBookmark;
};

} // namespace lineforge
