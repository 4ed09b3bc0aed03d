#include "compare/FieldCopy.h"

#include "compare/CompareSearch.h"
#include "compare/FieldDifference.h"
#include "compare/RefusedChange.h"
#include "compare/Sides.h"
#include "forms/Form6.h"
#include "platform/base/Number.h"
#include "platform/store/DataRef.h"
#include "platform/store/Fields.h"
#include "program/branch/WorkDatabase.h"
#include "program/state/RecordFields.h"

#include <set>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The two directions, with all in which appending differs.
struct Direction {
    const Side& From;
    const Side& To;
    QStringView Title;
    QStringView Branch;
    QStringView Break; // between the lines of the refusal
};
const Direction toCompare{CurrentSide, CompareSide, u"Append Record to Database.", u"Compare", u"\n"};
const Direction toCurrent{CompareSide, CurrentSide, u"Append Compare Record to Current Database.", u"Current", u""};

const Direction& DirectionOf(const forms::Form6& form)
{
    return form.Option1.Value ? toCompare : toCurrent;
}

// Without a record on either side nothing can be copied, whatever is on show.
bool IsPairSeen(const Comparison& comparison)
{
    return !HasRecord(comparison, CurrentSide) || !HasRecord(comparison, CompareSide) || IsSeen(comparison);
}

void CopyFields(const Recordset& from, Recordset& to)
{
    for (const QStringView field : CopyFieldList)
        to.Put(field, from.Value(field));
}

// Keeps the number for as long as the window lives, whatever becomes of its record.
void NoteZNumber(CompareState& state, const DataRef& file)
{
    if (file.IsOf(AppendedLetter))
        Concerning(u"Record "_s + file.Text(), [&] { state.ZNumberTable[ToLong(file.Digits())] = file.Text(); });
}

// Empty when all are taken.
QString FreeZNumber(const CompareState& state)
{
    for (int number = 1; number <= state.ZNumberTable.Last(); ++number)
        if (state.ZNumberTable[number].isEmpty())
            return DataRef(AppendedLetter, number).Text();
    return {};
}

void TellExists(Prompts& prompts, const Direction& way)
{
    prompts.MsgBox(u"Append Error"_s,
                   u"Record already exists in "_s + way.Branch + u" Database." + way.Break +
                       u"Delete the record before appending or else copy " + way.Break +
                       u"the details to the existing record.",
                   Buttons::Information);
}

// Goes through the branch that the record would be appended to, from where its cursor stands, and notes the numbers
// that are taken. False, with a box and the cursor back where it stood before, when it has the record's number.
bool PassThroughDestination(const Comparison& comparison, const Direction& way, const Bookmark& before)
{
    Recordset& to = way.To.Records(comparison);
    const FieldValue file = way.From.Records(comparison).Value(Field::File);
    for (; !to.Eof(); to.MoveNext()) {
        if (file && to.FieldIs(Field::File, *file)) {
            TellExists(comparison.Prompts, way);
            to.SetBookmark(before);
            return false;
        }
        // KEPT(FieldCopyTest.AppendToCurrent_LooksAtTheFirstCompareRecordForAZ): of the compare record in both
        // directions.
        // Mended, an append to the current branch would pass over the numbers that it meets there.
        NoteZNumber(comparison.State, DataRef(CompareRecords(comparison.Form6).Text(Field::File)));
    }
    return true;
}

std::set<QString> NumbersIn(Recordset& records)
{
    std::set<QString> numbers;
    for (records.MoveFirst(); !records.Eof(); records.MoveNext())
        numbers.insert(records.Text(Field::File));
    return numbers;
}

// What stands in the file and isn't known to the cursor has a number of its own: another program has added it behind
// the box, or the record form.
QString NumberStillFree(CompareState& state, const Recordset& to, const std::set<QString>& known)
{
    for (const QString& file : NumbersIn(*to.Afresh()))
        if (!known.contains(file))
            NoteZNumber(state, DataRef(file));
    return FreeZNumber(state);
}

void TellAppended(Prompts& prompts, const Direction& way, const QString& number)
{
    prompts.MsgBox(way.Title.toString(),
                   u"This Record will be Appended to the "_s + way.Branch + u"\nDatabase as " + number +
                       u" but will not be mapped into\nthe Ancestral Tree Display.",
                   Buttons::Information);
}

void TellNothingToCopy(Prompts& prompts)
{
    prompts.MsgBox(u"Copy Error"_s, u"There is no record to copy across."_s, Buttons::Information);
}

void Append(const Comparison& comparison, const Direction& way)
{
    Recordset& from = way.From.Records(comparison);
    Recordset& to = way.To.Records(comparison);
    const QString told = FreeZNumber(comparison.State);
    const std::set<QString> known = NumbersIn(to);
    to.MoveLast();
    // The scanner may run on behind the box.
    const Bookmark checked = from.GetBookmark();
    TellAppended(comparison.Prompts, way, told);
    from.SetBookmark(checked);
    to.Edit();
    to.AddNew();
    QString number;
    to.PutWhenWritten(Field::File, [&] { return number = NumberStillFree(comparison.State, to, known); });
    CopyFields(from, to);
    PersonTexts added = ReadPerson(comparison, way.To, NullForename::Empty);
    to.Update();
    // The cursor stays on the row before.
    added.File = number;
    added.Whose.Record = to.LastModified();
    ShowStepped(comparison, way.To, added);
    if (number != told)
        TellAppended(comparison.Prompts, way, number);
}
} // namespace

void CopyField(const Comparison& comparison)
{
    const Direction& way = DirectionOf(*comparison.Form6);
    if (!IsPairSeen(comparison))
        return;
    // Both have to name it: what is copied, and over what.
    if (!IsFieldOnShow(comparison.State, *comparison.Form6, CurrentSide) ||
        !IsFieldOnShow(comparison.State, *comparison.Form6, CompareSide))
        return TellNothingToCopy(comparison.Prompts);
    const QString& field = comparison.State.sCompField;
    try {
        ChangeOrShowAgain(comparison, way.To, [&](Recordset& to) {
            const FieldValue value = way.From.Records(comparison).Value(field);
            to.Put(field, value);
            ShowField(*comparison.Form6, way.To, value.value_or(QString()));
        });
    } catch (const RuntimeError& refusal) {
        if (refusal.IsTold)
            return;
        TellNothingToCopy(comparison.Prompts);
    }
}

void CopyAllFields(const Comparison& comparison)
{
    if (!IsPairSeen(comparison))
        return;
    const Direction& way = DirectionOf(*comparison.Form6);
    ChangeOrShowAgain(comparison, way.To, [&](Recordset& to) { CopyFields(way.From.Records(comparison), to); });
}

// Both directions begin with the compare recordset's first record.
// KEPT(FieldCopyTest.AppendToCurrent_TakesTheFirstCompareRecord_NotTheOneOnShow): to the current branch it is that one
// which is appended, not the one on show.
// Mended, the one on show would be appended.
// KEPT(FieldCopyTest.AppendToCurrent_LooksForTheNumberFromWhereTheCurrentBranchStands): the current branch is searched
// from where it stands.
// Mended, a record that stands further up would be found as well, and the append refused.
void AppendRecord(const Comparison& comparison)
{
    const Direction& way = DirectionOf(*comparison.Form6);
    // What is appended from left to right is on show; to whom it is appended makes no difference.
    if (&way.From == &CurrentSide && HasRecord(comparison, CurrentSide) && !IsOnShow(comparison, CurrentSide))
        return ShowSidesAnew(comparison);
    // Not kept with the map's positions: it may be one of the other branch.
    const Bookmark before = way.To.Records(comparison).GetBookmark();
    CompareRecords(comparison.Form6).MoveFirst();
    if (PassThroughDestination(comparison, way, before))
        Append(comparison, way);
}

} // namespace lineforge
