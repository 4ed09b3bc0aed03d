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
void ReadyWhenGivenUp(Window<forms::Form6>& window, const Step& step)
{
    try {
        step();
    } catch (const RuntimeError& refusal) {
        if (refusal.IsTold)
            ShowSearchState(*window, SearchState::Ready);
        throw;
    }
}

void Next(const Comparison& comparison, const Side& side, void (*end)(const Comparison& comparison))
{
    if (comparison.State.HasEnded())
        return;
    ShowSearchState(*comparison.Form6, SearchState::ByHand);
    ForgetPair(comparison.State, comparison.Scratch);
    Recordset& records = side.Records(comparison);
    if (!records.Eof())
        records.MoveNext();
    if (records.Eof()) {
        end(comparison);
        ShowSearchState(*comparison.Form6, SearchState::Busy);
        return;
    }
    ShowStepped(comparison, side, NullForename::Refused);
    ShowSearchState(*comparison.Form6, SearchState::Ready);
}

void Search(const Comparison& comparison)
{
    if (comparison.State.HasEnded())
        return;
    ShowSearchState(*comparison.Form6, SearchState::Busy);
    if (comparison.State.IsReset()) {
        SetFieldCaptions(*comparison.Form6, u"Searching Record Fields"_s, u"Searching Record Fields"_s);
        comparison.State.ResetDone = 0;
        comparison.Form6->Show();
    }
    const int mask = MaskOfBoxes(*comparison.Form6);
    comparison.State.SearchMask = mask;
    if (mask != 0 && comparison.Scratch.ScanState < ComparePair::InHand)
        SearchWhereSame(comparison);
    FieldDifferenceSearch(comparison);
}

void Reset(const Comparison& comparison)
{
    if (CompareRecords(comparison.Form6).IsEmpty() || Records(comparison.Form3).IsEmpty())
        return TellNoRecords(comparison.Prompts);
    comparison.State.SearchEnded = 0;
    ShowSearchState(*comparison.Form6, SearchState::Busy);
    Records(comparison.Form3).MoveFirst();
    CompareRecords(comparison.Form6).MoveFirst();
    comparison.State.ResetDone = 1;
    EmptyFields(*comparison.Form6);
    SetFieldCaptions(*comparison.Form6, u"Field"_s, u"Field"_s);
    ShowSearchState(*comparison.Form6, SearchState::Ready);
    ShowComparePair(comparison);
    comparison.Scratch.ScanState = ComparePair::None;
    comparison.State.SearchMask = 0;
    comparison.State.FieldStep = 0;
    ShowSearchState(*comparison.Form6, SearchState::Ready);
}
} // namespace

void SearchCompare(const Comparison& comparison)
{
    ReadyWhenGivenUp(comparison.Form6, [&] { Search(comparison); });
}

void ResetCompare(const Comparison& comparison)
{
    ReadyWhenGivenUp(comparison.Form6, [&] { Reset(comparison); });
}

void NextCompare(const Comparison& comparison)
{
    ReadyWhenGivenUp(comparison.Form6, [&] { Next(comparison, CompareSide, EndAtCompare); });
}

void NextCurrent(const Comparison& comparison)
{
    ReadyWhenGivenUp(comparison.Form6, [&] { Next(comparison, CurrentSide, EndAtCurrent); });
}

void ShowSteppedRecord(const Comparison& comparison)
{
    ForgetPair(comparison.State, comparison.Scratch);
    if (CompareRecords(comparison.Form6).HasRow())
        ShowStepped(comparison, CompareSide, NullForename::Empty);
}

// KEPT(FieldStepTest.Next_ForgetsThePlaceUpToTheDeathCertificate): beyond the row of the death certificate the search
// goes on where it was.
// Mended, it would begin at the first field after every step by hand.
void ForgetPair(CompareState& state, ScratchState& scratch)
{
    if (scratch.ScanState == ComparePair::InHand)
        scratch.ScanState = ComparePair::None;
    if (state.FieldStep >= 2 && state.FieldStep <= 18)
        state.FieldStep = 0;
}

void ShowSidesAnew(const Comparison& comparison)
{
    ForgetPair(comparison.State, comparison.Scratch);
    for (const Side* side : {&CurrentSide, &CompareSide})
        if (HasRecord(comparison, *side))
            ShowStepped(comparison, *side, NullForename::Empty);
}

bool IsSeen(const Comparison& comparison)
{
    for (const Side* side : {&CurrentSide, &CompareSide})
        if (HasRecord(comparison, *side) && !IsOnShow(comparison, *side)) {
            ShowSidesAnew(comparison);
            return false;
        }
    return true;
}

} // namespace lineforge
