#pragma once

#include "platform/base/Number.h"
#include "platform/store/Recordset.h"

#include <QString>

namespace lineforge
{

// The values of `RecordScanMode`: the buttons of the record scanner.
enum class ScanMode { FastForward = 1, Forward = 2, Stopped = 3, Back = 4, FastBack = 5 };

struct RecordState {
    QString sCurFile; // `File` of the record at hand
    QString sPicFile; // and its picture's name
    QString sPicSuffix;
    QString sForeName;
    QString sAltName;         // forename of a record of another branch
    QString sShownName;       // forename when the map last opened the record form
    QString sClipText;        // selected at the last click in a box of the record form
    Integer16 ClipSource;     // that box's number, 0 for none
    Integer16 RecordScanMode; // see `ScanMode`
    Bookmark SavedBookmark;
};

} // namespace lineforge
