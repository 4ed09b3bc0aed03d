#pragma once

#include "program/branch/WorkDatabase.h"

#include <utility>

namespace lineforge
{

// Makes that record current again, wherever the scanner has gone under a box. Where it hasn't, nothing is left, so that
// what is typed stays pending. Errors of the database.
inline void StandOn(Program& p, const Bookmark& record)
{
    Recordset& records = Records(p);
    if (!records.HasRow() || records.GetBookmark() != record)
        records.SetBookmark(record);
}

// Keeps where the cursor stands in `SavedBookmark`. On no row there is nothing to keep, and what was kept before stays.
inline void KeepPosition(Program& p)
{
    if (Records(p).HasRow())
        p.Record.SavedBookmark = Records(p).GetBookmark();
}

// Back to what was kept last, if anything was in this database.
inline void ComeBack(Program& p)
{
    if (p.Record.SavedBookmark && !Records(p).IsEmpty())
        Records(p).SetBookmark(p.Record.SavedBookmark);
}

// Does something that moves the cursor, by way of other branches too, and makes the current record current again. Begun
// on a record of another branch it ends where the doing has left it, for that branch is left meanwhile.
template <class Act>
void ComeBackAfterwards(Program& p, Act&& act)
{
    const bool isOwn = p.Branch.UsingAlternate == 0;
    const Recordset& records = Records(p);
    const Bookmark before = records.HasRow() ? records.GetBookmark() : Bookmark();
    std::forward<Act>(act)();
    if (!isOwn || p.Branch.UsingAlternate != 0 || !before)
        return;
    p.Record.SavedBookmark = before;
    Records(p).SetBookmark(before);
}

} // namespace lineforge
