#include "compare/FieldDifference.h"

#include "compare/CompareEnds.h"
#include "compare/SearchButton.h"
#include "compare/Sides.h"
#include "compare/WhereSame.h"
#include "forms/Form6.h"
#include "platform/base/Text.h"
#include "platform/store/Fields.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/Meanwhile.h"

#include <algorithm>
#include <array>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// A field that is looked at.
// KEPT(FieldDifferenceTest.GenderWeddingDateSpousesRecordAndNumber_AreNotCompared): `Gender`, `WedDate`, `SpouseRec`
// and `File` are none.
// Mended, a press would stop at pairs that it walks over now.
// KEPT(FieldDifferenceTest.MaidenNameThatDiffers_StopsTwice): Maiden stands twice.
// Mended, the rows behind it would move up, and a step by hand would forget one more of them.
struct ComparedField {
    QStringView Field;
    QStringView Caption;
    QStringView CompField; // what `sCompField` takes; three are no fields, so that they can't be copied singly
};
constexpr std::array<ComparedField, 22> ComparedFields{{
    {Field::Surname, u"Field: Surname", Field::Surname},
    {Field::Forename, u"Field: Forename", Field::Forename},
    {Field::Maiden, u"Field: Maiden Name", Field::Maiden},
    {Field::Nationality, u"Field: Nationality", u"Nation"},
    {Field::FatherRec, u"Field: Fathers Record", u"Father"},
    {Field::MotherRec, u"Field: Mothers Record", u"Mother"},
    {Field::BirthDate, u"Field: Birth Date", Field::BirthDate},
    {Field::BirthPlace, u"Field: Birth Place", Field::BirthPlace},
    {Field::Spouse, u"Field: Spouse", Field::Spouse},
    {Field::Children, u"Field: Children", Field::Children},
    {Field::Partner, u"Field: Partner", Field::Partner},
    {Field::PrevChildren, u"Field: Previous Children", Field::PrevChildren},
    {Field::Maiden, u"Field: Maiden Name", Field::Maiden},
    {Field::Wedding, u"Field: Wedding", Field::Wedding},
    {Field::BirthCertificate, u"Field: Birth Certificate", Field::BirthCertificate},
    {Field::MarriageCertificate, u"Field: Marriage Certificate", Field::MarriageCertificate},
    {Field::DeathCertificate, u"Field: Death Certificate", Field::DeathCertificate},
    {Field::Education, u"Field: Education", Field::Education},
    {Field::Profession, u"Field: Profession", Field::Profession},
    {Field::Deceased, u"Field: Deceased", Field::Deceased},
    {Field::Medical, u"Field: Notes(1)", Field::Medical},
    {Field::Notes, u"Field: Notes(2)", Field::Notes},
}};

// A pair that a walk has come to. All of it is read before any is shown; and of the pairs that one press walks over the
// last alone is shown, since nobody sees the others before the press has ended.
struct WalkedPair {
    PersonTexts Current;
    PersonTexts Compare;
    bool IsOnShow = false; // already, from the press before
    std::size_t Field = 0; // the first that differs, or behind the last
    QString Ours;
    QString Theirs;

    bool Differs() const { return Field < ComparedFields.size(); }
};

WalkedPair WalkPair(const Comparison& comparison)
{
    WalkedPair pair;
    pair.Current = ReadPerson(comparison, CurrentSide, NullForename::Empty);
    pair.Compare = ReadPerson(comparison, CompareSide, NullForename::Empty);
    // The record form may have gone elsewhere since the press before.
    pair.IsOnShow =
        comparison.State.FieldStep > 1 && IsOnShow(comparison, CurrentSide) && IsOnShow(comparison, CompareSide);
    for (pair.Field = static_cast<std::size_t>(std::max(0, comparison.State.FieldStep - 1)); pair.Differs();
         ++pair.Field) {
        pair.Ours = Records(comparison.Form3).Text(ComparedFields[pair.Field].Field);
        pair.Theirs = CompareRecords(comparison.Form6).Text(ComparedFields[pair.Field].Field);
        if (!SameText(pair.Ours, pair.Theirs))
            break;
    }
    return pair;
}

void ShowPersons(const ComparedSides& sides, const PersonTexts& current, const PersonTexts& compare)
{
    ShowPerson(sides, CurrentSide, current);
    ShowPerson(sides, CompareSide, compare);
}

void ShowDifference(const Comparison& comparison, const WalkedPair& pair)
{
    const ComparedField& field = ComparedFields[pair.Field];
    SetFieldCaptions(*comparison.Form6, field.Caption.toString(), field.Caption.toString());
    comparison.State.sCompField = field.CompField.toString();
    comparison.State.FieldStep = static_cast<int>(pair.Field) + 2;
    ShowFields(*comparison.Form6, pair.Ours, pair.Theirs);
    comparison.Form6->Text5.Text = pair.Current.Forename;
    comparison.Form6->Text6.Text = pair.Compare.Forename;
    ShowSearchState(*comparison.Form6, SearchState::Found);
}

void ShowEndOfPair(const Comparison& comparison)
{
    EmptyFields(*comparison.Form6);
    SetFieldCaptions(*comparison.Form6, u"End of Fields this Record"_s, u"End of Fields this Record"_s);
    ShowSearchState(*comparison.Form6, SearchState::Found);
    comparison.Scratch.ScanState = ComparePair::Walked;
}

enum class NextPair { Stands, BeginsRound, Missing };

// Each current record meets all compare records.
NextPair MoveToNextPair(const Comparison& comparison)
{
    Recordset& current = Records(comparison.Form3);
    Recordset& compare = CompareRecords(comparison.Form6);
    compare.MoveNext();
    if (!compare.Eof())
        return NextPair::Stands;
    compare.MoveFirst();
    current.MoveNext();
    return current.Eof() ? NextPair::Missing : NextPair::BeginsRound;
}

// Whether one side has run out before anything is compared; shows which.
bool ShowEndIfNoPair(const Comparison& comparison)
{
    const bool isCurrent = Records(comparison.Form3).Eof();
    if (!isCurrent && !CompareRecords(comparison.Form6).Eof())
        return false;
    if (isCurrent)
        EndAtCurrent(comparison);
    else
        EndAtCompare(comparison);
    CaptionEndOfFieldSearch(*comparison.Form6);
    return true;
}

void ShowPersons(const Comparison& comparison, const WalkedPair& pair)
{
    if (!pair.IsOnShow)
        ShowPersons(comparison, pair.Current, pair.Compare);
}

// Whether the walk stops at the pair, which is shown then. A pair that was searched for is stopped at in any case.
bool StopsAt(const Comparison& comparison, const WalkedPair& pair)
{
    const bool isEnd = !pair.Differs();
    if (isEnd)
        comparison.State.FieldStep = 0;
    if (isEnd && comparison.Scratch.ScanState != ComparePair::InHand)
        return false;
    ShowPersons(comparison, pair);
    if (isEnd)
        ShowEndOfPair(comparison);
    else
        ShowDifference(comparison, pair);
    return true;
}

// Walks pair by pair, to a stop or to the end of a round, whose last pair is shown.
NextPair WalkPairs(const Comparison& comparison)
{
    Meanwhile meanwhile(comparison.Loop);
    for (;;) {
        const WalkedPair pair = WalkPair(comparison);
        if (StopsAt(comparison, pair))
            return NextPair::Stands;
        const NextPair next = MoveToNextPair(comparison);
        if (next != NextPair::Stands) {
            ShowPersons(comparison, pair);
            return next;
        }
        meanwhile.KeepPainted();
    }
}
} // namespace

void FieldDifferenceSearch(const Comparison& comparison)
{
    if (comparison.Scratch.ScanState == ComparePair::Ended || comparison.State.HasEnded() ||
        ShowEndIfNoPair(comparison))
        return;
    switch (WalkPairs(comparison)) {
    case NextPair::Stands:
        return;
    case NextPair::BeginsRound:
        ShowSearchState(*comparison.Form6, SearchState::Ready);
        ShowComparePair(comparison);
        // Those of the pair that was walked last.
        SetFieldCaptions(*comparison.Form6, u"Field:"_s, u"Field:"_s);
        EmptyFields(*comparison.Form6);
        return;
    case NextPair::Missing:
        EndOfFieldSearch(comparison);
        return;
    }
}

QStringView FieldNamedBy(const QString& caption)
{
    const auto named = std::ranges::find(ComparedFields, caption, &ComparedField::Caption);
    return named == ComparedFields.end() ? QStringView() : named->Field;
}

bool IsFieldOnShow(const CompareState& state, const forms::Form6& form, const Side& side)
{
    const QString& field = state.sCompField;
    const auto isNamed = [&, caption = (form.*side.FieldFrame).Caption.value()](const ComparedField& row) {
        return row.Caption == caption && row.CompField == field;
    };
    return field.isEmpty() || std::ranges::any_of(ComparedFields, isNamed);
}

void ShowComparePair(const ComparedSides& sides)
{
    const PersonTexts current = ReadPerson(sides, CurrentSide, NullForename::Refused);
    ShowPersons(sides, current, ReadPerson(sides, CompareSide, NullForename::Refused));
    sides.Form6->Label7.Caption = sides.State.sCompName;
}

} // namespace lineforge
