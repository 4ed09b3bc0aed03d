#include "compare/WhereSame.h"

#include "compare/CompareEnds.h"
#include "compare/KeyIndex.h"
#include "compare/Sides.h"
#include "forms/Form6.h"
#include "platform/store/Fields.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/Meanwhile.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// From a pair whose fields have all been walked to the next. False, with a box, at the end.
bool LeaveWalkedPair(const Comparison& comparison)
{
    Recordset& current = Records(comparison.Form3);
    Recordset& compare = CompareRecords(comparison.Form6);
    comparison.Scratch.ScanState = ComparePair::None;
    if (!compare.Eof())
        compare.MoveNext();
    if (compare.Eof()) {
        compare.MoveFirst();
        if (!current.Eof())
            current.MoveNext();
    }
    if (current.Eof()) {
        EndAtCurrent(comparison);
        return false;
    }
    if (compare.Eof()) {
        EndAtCompare(comparison);
        return false;
    }
    return true;
}

// The rest of the compare records for the current one, from the pair at hand on.
bool FindInRest(const Comparison& comparison, const KeyFields& keys, Meanwhile& meanwhile)
{
    Recordset& compare = CompareRecords(comparison.Form6);
    const QString wanted = KeyOf(Records(comparison.Form3), keys);
    for (; !compare.Eof(); compare.MoveNext()) {
        if (!wanted.isEmpty() && KeyOf(compare, keys) == wanted)
            return true;
        meanwhile.KeepPainted();
    }
    return false;
}

// All compare records for each of the current ones that follow. Looked up instead of walked: the pair is the one that
// the walk of each through all would have met first.
bool FindInFollowing(const Comparison& comparison, const KeyFields& keys, Meanwhile& meanwhile)
{
    Recordset& current = Records(comparison.Form3);
    Recordset& compare = CompareRecords(comparison.Form6);
    current.MoveNext();
    if (current.Eof())
        return false;
    const QHash<QString, Bookmark> index = FirstOfEachKey(compare, keys, meanwhile);
    for (; !current.Eof(); current.MoveNext()) {
        const QString wanted = KeyOf(current, keys);
        if (const auto found = index.constFind(wanted); !wanted.isEmpty() && found != index.constEnd()) {
            compare.SetBookmark(*found);
            return true;
        }
        meanwhile.KeepPainted();
    }
    return false;
}

bool FindPair(const Comparison& comparison)
{
    if (Records(comparison.Form3).Eof())
        return false;
    const KeyFields keys = KeysOf(comparison.State.SearchMask);
    Meanwhile meanwhile(comparison.Loop);
    return FindInRest(comparison, keys, meanwhile) || FindInFollowing(comparison, keys, meanwhile);
}
} // namespace

void SearchWhereSame(const Comparison& comparison)
{
    if (comparison.State.HasEnded())
        return;
    if (comparison.Scratch.ScanState == ComparePair::Walked && !LeaveWalkedPair(comparison))
        return;
    comparison.Form6->Show();
    if (FindPair(comparison)) {
        comparison.Scratch.ScanState = ComparePair::InHand;
        comparison.State.FieldStep = 0;
        ShowPicture(comparison, CompareSide, CompareRecords(comparison.Form6).Text(Field::File));
        return;
    }
    CompareRecords(comparison.Form6).MoveFirst();
    EndOfRecords(comparison);
    comparison.Scratch.ScanState = ComparePair::Ended;
}

} // namespace lineforge
