#pragma once

#include "program/branch/WorkDatabase.h"
#include "program/state/BranchState.h"
#include "program/state/RecordState.h"

#include <utility>

namespace lineforge
{

// Makes that record current again, wherever the scanner has gone under a box. Where it hasn't, nothing is left, so that
// what is typed stays pending. Errors of the database.
inline void StandOn(Recordset& records, const Bookmark& record)
{
    if (!records.HasRow() || records.GetBookmark() != record)
        records.SetBookmark(record);
}

// Keeps where the cursor stands in `SavedBookmark`. On no row there is nothing to keep, and what was kept before stays.
inline void KeepPosition(RecordState& state, const Recordset& records)
{
    if (records.HasRow())
        state.SavedBookmark = records.GetBookmark();
}

// Back to what was kept last, if anything was in this database.
inline void ComeBack(const RecordState& state, Window<forms::Form3>& recordForm)
{
    if (state.SavedBookmark && !Records(recordForm).IsEmpty())
        Records(recordForm).SetBookmark(state.SavedBookmark);
}

// Does something that moves the cursor, by way of other branches too, and makes the current record current again. Begun
// on a record of another branch it ends where the doing has left it, for that branch is left meanwhile. What ends the
// doing goes on when the way back is done, as far as that is open.
template <class Act>
void ComeBackAfterwards(const BranchState& branch, RecordState& state, Window<forms::Form3>& recordForm, Act&& act)
{
    const bool isOwn = !branch.IsSiblingShown();
    const Recordset& records = Records(recordForm);
    const Bookmark before = records.HasRow() ? records.GetBookmark() : Bookmark();
    const auto comeBack = [&] {
        if (!isOwn || branch.IsSiblingShown() || !before)
            return;
        state.SavedBookmark = before;
        Records(recordForm).SetBookmark(before);
    };
    try {
        std::forward<Act>(act)();
    } catch (const RuntimeError&) {
        try {
            comeBack();
        } catch (const RuntimeError&) {
            // The first refusal is the one to be told.
        }
        throw;
    }
    comeBack();
}

} // namespace lineforge
