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
bool LeaveWalkedPair(Program& p)
{
    Recordset& current = Records(p.Form3);
    Recordset& compare = CompareRecords(p);
    p.Scratch.ScanState = ComparePair::None;
    if (!compare.Eof())
        compare.MoveNext();
    if (compare.Eof()) {
        compare.MoveFirst();
        if (!current.Eof())
            current.MoveNext();
    }
    if (current.Eof()) {
        EndAtCurrent(p);
        return false;
    }
    if (compare.Eof()) {
        EndAtCompare(p);
        return false;
    }
    return true;
}

// The rest of the compare records for the current one, from the pair at hand on.
bool FindInRest(Program& p, const KeyFields& keys, Meanwhile& meanwhile)
{
    Recordset& compare = CompareRecords(p);
    const QString wanted = KeyOf(Records(p.Form3), keys);
    for (; !compare.Eof(); compare.MoveNext()) {
        if (!wanted.isEmpty() && KeyOf(compare, keys) == wanted)
            return true;
        meanwhile.KeepPainted();
    }
    return false;
}

// All compare records for each of the current ones that follow. Looked up instead of walked: the pair is the one that
// the walk of each through all would have met first.
bool FindInFollowing(Program& p, const KeyFields& keys, Meanwhile& meanwhile)
{
    Recordset& current = Records(p.Form3);
    Recordset& compare = CompareRecords(p);
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

bool FindPair(Program& p)
{
    if (Records(p.Form3).Eof())
        return false;
    const KeyFields keys = KeysOf(p.Compare.SearchMask);
    Meanwhile meanwhile(p.Loop);
    return FindInRest(p, keys, meanwhile) || FindInFollowing(p, keys, meanwhile);
}
} // namespace

void SearchWhereSame(Program& p)
{
    if (p.Compare.SearchEnded == 1)
        return;
    if (p.Scratch.ScanState == ComparePair::Walked && !LeaveWalkedPair(p))
        return;
    p.Form6->Show();
    if (FindPair(p)) {
        p.Scratch.ScanState = ComparePair::InHand;
        p.Compare.FieldStep = 0;
        ShowPicture(p, CompareSide, CompareRecords(p).Text(Field::File));
        return;
    }
    CompareRecords(p).MoveFirst();
    EndOfRecords(p);
    p.Scratch.ScanState = ComparePair::Ended;
}

} // namespace lineforge
