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

WalkedPair WalkPair(Program& p)
{
    WalkedPair pair;
    pair.Current = ReadPerson(p, CurrentSide, NullForename::Empty);
    pair.Compare = ReadPerson(p, CompareSide, NullForename::Empty);
    // The record form may have gone elsewhere since the press before.
    pair.IsOnShow = p.Compare.FieldStep > 1 && IsOnShow(p, CurrentSide) && IsOnShow(p, CompareSide);
    for (pair.Field = static_cast<std::size_t>(std::max(0, p.Compare.FieldStep - 1)); pair.Differs(); ++pair.Field) {
        pair.Ours = Records(p.Form3).Text(ComparedFields[pair.Field].Field);
        pair.Theirs = CompareRecords(p).Text(ComparedFields[pair.Field].Field);
        if (!SameText(pair.Ours, pair.Theirs))
            break;
    }
    return pair;
}

void ShowPersons(Program& p, const PersonTexts& current, const PersonTexts& compare)
{
    ShowPerson(p, CurrentSide, current);
    ShowPerson(p, CompareSide, compare);
}

void ShowDifference(Program& p, const WalkedPair& pair)
{
    const ComparedField& field = ComparedFields[pair.Field];
    SetFieldCaptions(p, field.Caption.toString(), field.Caption.toString());
    p.Compare.sCompField = field.CompField.toString();
    p.Compare.FieldStep = static_cast<int>(pair.Field) + 2;
    ShowFields(p, pair.Ours, pair.Theirs);
    p.Form6->Text5.Text = pair.Current.Forename;
    p.Form6->Text6.Text = pair.Compare.Forename;
    ShowSearchState(p, SearchState::Found);
}

void ShowEndOfPair(Program& p)
{
    EmptyFields(p);
    SetFieldCaptions(p, u"End of Fields this Record"_s, u"End of Fields this Record"_s);
    ShowSearchState(p, SearchState::Found);
    p.Scratch.ScanState = ComparePair::Walked;
}

enum class NextPair { Stands, BeginsRound, Missing };

// Each current record meets all compare records.
NextPair MoveToNextPair(Program& p)
{
    Recordset& current = Records(p.Form3);
    Recordset& compare = CompareRecords(p);
    compare.MoveNext();
    if (!compare.Eof())
        return NextPair::Stands;
    compare.MoveFirst();
    current.MoveNext();
    return current.Eof() ? NextPair::Missing : NextPair::BeginsRound;
}

// Whether one side has run out before anything is compared; shows which.
bool ShowEndIfNoPair(Program& p)
{
    const bool isCurrent = Records(p.Form3).Eof();
    if (!isCurrent && !CompareRecords(p).Eof())
        return false;
    if (isCurrent)
        EndAtCurrent(p);
    else
        EndAtCompare(p);
    CaptionEndOfFieldSearch(p);
    return true;
}

void ShowPersons(Program& p, const WalkedPair& pair)
{
    if (!pair.IsOnShow)
        ShowPersons(p, pair.Current, pair.Compare);
}

// Whether the walk stops at the pair, which is shown then. A pair that was searched for is stopped at in any case.
bool StopsAt(Program& p, const WalkedPair& pair)
{
    const bool isEnd = !pair.Differs();
    if (isEnd)
        p.Compare.FieldStep = 0;
    if (isEnd && p.Scratch.ScanState != ComparePair::InHand)
        return false;
    ShowPersons(p, pair);
    if (isEnd)
        ShowEndOfPair(p);
    else
        ShowDifference(p, pair);
    return true;
}

// Walks pair by pair, to a stop or to the end of a round, whose last pair is shown.
NextPair WalkPairs(Program& p)
{
    Meanwhile meanwhile(p.Loop);
    for (;;) {
        const WalkedPair pair = WalkPair(p);
        if (StopsAt(p, pair))
            return NextPair::Stands;
        const NextPair next = MoveToNextPair(p);
        if (next != NextPair::Stands) {
            ShowPersons(p, pair);
            return next;
        }
        meanwhile.KeepPainted();
    }
}
} // namespace

void FieldDifferenceSearch(Program& p)
{
    if (p.Scratch.ScanState == ComparePair::Ended || p.Compare.SearchEnded == 1 || ShowEndIfNoPair(p))
        return;
    switch (WalkPairs(p)) {
    case NextPair::Stands:
        return;
    case NextPair::BeginsRound:
        ShowSearchState(p, SearchState::Ready);
        ShowComparePair(p);
        // Those of the pair that was walked last.
        SetFieldCaptions(p, u"Field:"_s, u"Field:"_s);
        EmptyFields(p);
        return;
    case NextPair::Missing:
        EndOfFieldSearch(p);
        return;
    }
}

QStringView FieldNamedBy(const QString& caption)
{
    const auto named = std::ranges::find(ComparedFields, caption, &ComparedField::Caption);
    return named == ComparedFields.end() ? QStringView() : named->Field;
}

bool IsFieldOnShow(Program& p, const Side& side)
{
    const QString& field = p.Compare.sCompField;
    const auto isNamed = [&, caption = ((*p.Form6).*side.FieldFrame).Caption.value()](const ComparedField& row) {
        return row.Caption == caption && row.CompField == field;
    };
    return field.isEmpty() || std::ranges::any_of(ComparedFields, isNamed);
}

void ShowComparePair(Program& p)
{
    const PersonTexts current = ReadPerson(p, CurrentSide, NullForename::Refused);
    ShowPersons(p, current, ReadPerson(p, CompareSide, NullForename::Refused));
    p.Form6->Label7.Caption = p.Compare.sCompName;
}

} // namespace lineforge
