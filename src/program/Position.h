#pragma once

#include "program/WorkDatabase.h"

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

// Does something that moves the cursor and makes the current record current again, by `SavedBookmark`. Begun on a
// record of another branch it ends where the doing has left it, for that branch is left meanwhile.
template <class Act>
void ComeBackAfterwards(Program& p, Act&& act)
{
    const bool isOwn = p.Branch.UsingAlternate == 0;
    const Recordset& records = Records(p);
    p.Record.SavedBookmark = records.HasRow() ? records.GetBookmark() : Bookmark();
    std::forward<Act>(act)();
    if (isOwn && p.Branch.UsingAlternate == 0 && p.Record.SavedBookmark)
        Records(p).SetBookmark(p.Record.SavedBookmark);
}

} // namespace lineforge
