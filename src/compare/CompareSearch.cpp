#include "compare/CompareSearch.h"

#include "compare/CompareEnds.h"
#include "compare/FieldDifference.h"
#include "compare/KeyIndex.h"
#include "compare/SearchButton.h"
#include "compare/Sides.h"
#include "compare/WhereSame.h"
#include "forms/Form6.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
int MaskOfBoxes(const forms::Form6& form)
{
    return (form.Check1.Value ? CompareKey::File : 0) + (form.Check2.Value ? CompareKey::Surname : 0) +
           (form.Check3.Value ? CompareKey::BirthDate : 0);
}

// What another program has ended, and the user knows, doesn't leave the light of a search.
template <class Step>
void ReadyWhenGivenUp(Program& p, const Step& step)
{
    try {
        step();
    } catch (const RuntimeError& refusal) {
        if (refusal.IsTold)
            ShowSearchState(p, SearchState::Ready);
        throw;
    }
}

void Next(Program& p, const Side& side, void (*end)(Program& p))
{
    if (p.Compare.SearchEnded == 1)
        return;
    ShowSearchState(p, SearchState::ByHand);
    ForgetPair(p);
    Recordset& records = side.Records(p);
    if (!records.Eof())
        records.MoveNext();
    if (records.Eof()) {
        end(p);
        ShowSearchState(p, SearchState::Busy);
        return;
    }
    ShowStepped(p, side, NullForename::Refused);
    ShowSearchState(p, SearchState::Ready);
}

void Search(Program& p)
{
    if (p.Compare.SearchEnded == 1)
        return;
    ShowSearchState(p, SearchState::Busy);
    if (p.Compare.ResetDone == 1) {
        SetFieldCaptions(p, u"Searching Record Fields"_s, u"Searching Record Fields"_s);
        p.Compare.ResetDone = 0;
        p.Form6->Show();
    }
    const int mask = MaskOfBoxes(*p.Form6);
    p.Compare.SearchMask = mask;
    if (mask != 0 && p.Scratch.ScanState < ComparePair::InHand)
        SearchWhereSame(p);
    FieldDifferenceSearch(p);
}

void Reset(Program& p)
{
    if (CompareRecords(p).IsEmpty() || Records(p.Form3).IsEmpty())
        return TellNoRecords(p.Prompts);
    p.Compare.SearchEnded = 0;
    ShowSearchState(p, SearchState::Busy);
    Records(p.Form3).MoveFirst();
    CompareRecords(p).MoveFirst();
    p.Compare.ResetDone = 1;
    EmptyFields(p);
    SetFieldCaptions(p, u"Field"_s, u"Field"_s);
    ShowSearchState(p, SearchState::Ready);
    ShowComparePair(p);
    p.Scratch.ScanState = ComparePair::None;
    p.Compare.SearchMask = 0;
    p.Compare.FieldStep = 0;
    ShowSearchState(p, SearchState::Ready);
}
} // namespace

void SearchCompare(Program& p)
{
    ReadyWhenGivenUp(p, [&] { Search(p); });
}

void ResetCompare(Program& p)
{
    ReadyWhenGivenUp(p, [&] { Reset(p); });
}

void NextCompare(Program& p)
{
    ReadyWhenGivenUp(p, [&] { Next(p, CompareSide, EndAtCompare); });
}

void NextCurrent(Program& p)
{
    ReadyWhenGivenUp(p, [&] { Next(p, CurrentSide, EndAtCurrent); });
}

void ShowSteppedRecord(Program& p)
{
    ForgetPair(p);
    if (CompareRecords(p).HasRow())
        ShowStepped(p, CompareSide, NullForename::Empty);
}

// KEPT(FieldStepTest.Next_ForgetsThePlaceUpToTheDeathCertificate): beyond the row of the death certificate the search
// goes on where it was.
// Mended, it would begin at the first field after every step by hand.
void ForgetPair(Program& p)
{
    if (p.Scratch.ScanState == ComparePair::InHand)
        p.Scratch.ScanState = ComparePair::None;
    if (p.Compare.FieldStep >= 2 && p.Compare.FieldStep <= 18)
        p.Compare.FieldStep = 0;
}

void ShowSidesAnew(Program& p)
{
    ForgetPair(p);
    for (const Side* side : {&CurrentSide, &CompareSide})
        if (HasRecord(p, *side))
            ShowStepped(p, *side, NullForename::Empty);
}

bool IsSeen(Program& p)
{
    for (const Side* side : {&CurrentSide, &CompareSide})
        if (HasRecord(p, *side) && !IsOnShow(p, *side)) {
            ShowSidesAnew(p);
            return false;
        }
    return true;
}

} // namespace lineforge
