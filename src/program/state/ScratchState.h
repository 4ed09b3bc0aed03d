#pragma once

#include "platform/base/Number.h"

#include <QString>

namespace lineforge
{

// Shared by all routines. They carry no state between commands, but some routines read what a called one left there.
struct ScratchState {
    Integer16 ScanState; // one word for gallery, comparison and GEDCOM conversion, none of which resets the others'
    int IdxA = 0;
    int IdxB = 0;
    int LenScratch = 0;
    QString sFileA;
    QString sFileB;
    QString sNewDir; // written by several commands; the searches and the gallery rely on the last writer
    QString sPath;
    QString sInput;
};

} // namespace lineforge
