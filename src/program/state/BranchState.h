#pragma once

#include "platform/base/FixedArray.h"
#include "platform/base/Number.h"

#include <QString>

namespace lineforge
{

struct BranchState {
    QString HomeDir;      // with a trailing separator; all fixed files and branch directories stand beneath it
    QString WorkDir;      // directory of the open branch, without a trailing separator; empty: none is open
    Integer16 WorkDirLen; // its length, kept beside it
    // The open database; empty: none. A whole path after New and after a switch to a sibling branch, the bare file
    // name after Open, so that whoever compares it tries both.
    QString sDbaseName;
    QString sBranchName;
    // 1 while the current record comes from a branch other than the one whose map is shown; the two directories then
    // point at that branch and the saved ones hold the map's own.
    Integer16 UsingAlternate;
    bool IsSiblingShown() const { return UsingAlternate == 1; }
    QString WorkDirSaved;
    QString HomeDirSaved;
    // Letters that were in use at some time of this run; one that a deletion has freed stays in here.
    FixedArray<bool, 1, 26> TakenLetters;
};

struct AliasState {
    QString sAliasList;                    // "name=directory," again and again
    FixedArray<QString, 0, 99> AliasTable; // the same entries without their commas; the first empty one ends them
    Integer16 AliasAttr;                   // attributes of the list's file at its last reading
    Integer16 NoSplash;                    // 1: the splash isn't shown
    bool IsSplashOff() const { return NoSplash == 1; }
};

} // namespace lineforge
