#include "compare/FieldDifference.h"

#include "compare/CompareEnds.h"
#include "compare/CompareKeys.h"
#include "compare/SearchButton.h"
#include "compare/Sides.h"
#include "compare/WhereSame.h"
#include "platform/Text.h"
#include "program/Meanwhile.h"
#include "program/WorkDatabase.h"

#include <array>
#include <optional>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// A field that is looked at. `Gender`, `WedDate`, `SpouseRec` and `File` are none, and Maiden stands twice; so it is
// meant to be.
struct ComparedField {
    QStringView Field;
    QStringView Caption;
    QStringView CompField; // what `sCompField` takes; three are no fields, so that they can't be copied singly
};
constexpr std::array<ComparedField, 22> ComparedFields{{
    {u"Surname", u"Field: Surname", u"Surname"},
    {u"Forename", u"Field: Forename", u"Forename"},
    {u"Maiden", u"Field: Maiden Name", u"Maiden"},
    {u"Nationality", u"Field: Nationality", u"Nation"},
    {u"FatherRec", u"Field: Fathers Record", u"Father"},
    {u"MotherRec", u"Field: Mothers Record", u"Mother"},
    {u"BirthDate", u"Field: Birth Date", u"BirthDate"},
    {u"BirthPlace", u"Field: Birth Place", u"BirthPlace"},
    {u"Spouse", u"Field: Spouse", u"Spouse"},
    {u"Children", u"Field: Children", u"Children"},
    {u"Partner", u"Field: Partner", u"Partner"},
    {u"PrevChildren", u"Field: Previous Children", u"PrevChildren"},
    {u"Maiden", u"Field: Maiden Name", u"Maiden"},
    {u"Wedding", u"Field: Wedding", u"Wedding"},
    {u"BirthCertificate", u"Field: Birth Certificate", u"BirthCertificate"},
    {u"MarriageCertificate", u"Field: Marriage Certificate", u"MarriageCertificate"},
    {u"DeathCertificate", u"Field: Death Certificate", u"DeathCertificate"},
    {u"Education", u"Field: Education", u"Education"},
    {u"Profession", u"Field: Profession", u"Profession"},
    {u"Deceased", u"Field: Deceased", u"Deceased"},
    {u"Medical", u"Field: Notes(1)", u"Medical"},
    {u"Notes", u"Field: Notes(2)", u"Notes"},
}};

// What a walk over many pairs would show of each is shown of the last alone: nobody sees it before the press has ended.
struct WalkedPair {
    std::optional<QString> CurrentFile;
    std::optional<QString> CompareFile;
    std::optional<QString> CurrentSurname;
    std::optional<QString> CompareSurname;
};

void Show(Program& p, const WalkedPair& pair)
{
    forms::Form6& form = *p.Form6;
    if (pair.CurrentFile) {
        form.Label4.Caption = *pair.CurrentFile;
        form.Label9.Caption = *pair.CompareFile;
        ShowPicture(p, CurrentSide, *pair.CurrentFile);
        ShowPicture(p, CompareSide, *pair.CompareFile);
    }
    if (pair.CurrentSurname) {
        form.Text1.Text = *pair.CurrentSurname;
        form.Text3.Text = *pair.CompareSurname;
    }
}

// The index of the first field from `FieldStep` on that differs, or that behind the last.
std::size_t FindDifference(Program& p, WalkedPair& pair)
{
    const Recordset& current = Records(p);
    const Recordset& compare = CompareRecords(p);
    std::size_t at = static_cast<std::size_t>(std::max(0, p.Compare.FieldStep - 1));
    for (; at < ComparedFields.size(); ++at) {
        const QString ours = current.Text(ComparedFields[at].Field);
        const QString theirs = compare.Text(ComparedFields[at].Field);
        if (at == 0) {
            pair.CurrentSurname = ours;
            pair.CompareSurname = theirs;
        }
        if (!SameText(ours, theirs))
            break;
    }
    return at;
}

void ShowDifference(Program& p, std::size_t at)
{
    const ComparedField& field = ComparedFields[at];
    forms::Form6& form = *p.Form6;
    SetFieldCaptions(p, field.Caption.toString(), field.Caption.toString());
    p.Compare.sCompField = field.CompField.toString();
    p.Compare.FieldStep = static_cast<int>(at) + 2;
    ShowFields(p, Records(p).Text(field.Field), CompareRecords(p).Text(field.Field));
    form.Text5.Text = Records(p).Text(u"Forename");
    form.Text6.Text = CompareRecords(p).Text(u"Forename");
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
    Recordset& current = Records(p);
    Recordset& compare = CompareRecords(p);
    compare.MoveNext();
    if (!compare.Eof())
        return NextPair::Stands;
    compare.MoveFirst();
    current.MoveNext();
    return current.Eof() ? NextPair::Missing : NextPair::BeginsRound;
}

bool EndsAtOnce(Program& p)
{
    const bool isCurrent = Records(p).Eof();
    if (!isCurrent && !CompareRecords(p).Eof())
        return false;
    if (isCurrent)
        EndAtCurrent(p);
    else
        EndAtCompare(p);
    CaptionEndOfFieldSearch(p);
    return true;
}

// Walks pair by pair. What comes of it when no field differs any more; nothing when one does, which is shown then.
std::optional<NextPair> WalkPairs(Program& p, WalkedPair& pair)
{
    Meanwhile meanwhile(p);
    for (;;) {
        if (p.Compare.FieldStep == 0) {
            pair.CurrentFile = Records(p).Text(u"File");
            pair.CompareFile = CompareRecords(p).Text(u"File");
        }
        const std::size_t at = FindDifference(p, pair);
        if (at < ComparedFields.size()) {
            ShowDifference(p, at);
            return std::nullopt;
        }
        p.Compare.FieldStep = 0;
        if (p.Scratch.ScanState == ComparePair::InHand) {
            ShowEndOfPair(p);
            return std::nullopt;
        }
        if (const NextPair next = MoveToNextPair(p); next != NextPair::Stands)
            return next;
        meanwhile.KeepPainted();
    }
}
} // namespace

void FieldDifferenceSearch(Program& p)
{
    if (p.Scratch.ScanState == ComparePair::Ended || p.Compare.SearchEnded == 1 || EndsAtOnce(p))
        return;
    WalkedPair pair;
    const std::optional<NextPair> next = WalkPairs(p, pair);
    Show(p, pair);
    if (!next)
        return;
    ShowSearchState(p, SearchState::Ready);
    if (*next == NextPair::BeginsRound)
        ShowComparePair(p);
    else
        EndOfFieldSearch(p);
}

void ShowComparePair(Program& p)
{
    ShowRecord(p, CurrentSide);
    ShowRecord(p, CompareSide);
    p.Form6->Label7.Caption = p.Compare.sCompName;
}

} // namespace lineforge
