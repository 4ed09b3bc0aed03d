#include "compare/CompareBranch.h"

#include "compare/CompareSearch.h"
#include "compare/FieldDifference.h"
#include "compare/SearchButton.h"
#include "compare/Sides.h"
#include "forms/Form1.h"
#include "forms/Form6.h"
#include "forms/Form8.h"
#include "platform/store/Fields.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/OldDatabase.h"
#include "program/branch/SiblingBranch.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The surname stands in the field's box, but no field is chosen by that.
void ShowFirstCurrentRecord(const Comparison& comparison)
{
    const PersonTexts person = ReadPerson(comparison, CurrentSide, NullForename::Empty);
    ShowPerson(comparison, CurrentSide, person);
    ShowField(*comparison.Form6, CurrentSide, person.Surname);
    comparison.Form6->Frame5.Caption = u"Field: Surname"_s;
}

// What is copied or cut is the record at which the cursor stands, wherever it has gone meanwhile. The same record keeps
// its field and its pair.
void ShowCurrentAgain(const Comparison& comparison)
{
    // What has been typed on the record form meanwhile is seen here as well.
    comparison.Errors.Ignoring([&] { StoreTyped(comparison.Form3); });
    if (IsOnShow(comparison, CurrentSide)) {
        ShowPerson(comparison, CurrentSide, ReadPerson(comparison, CurrentSide, NullForename::Empty));
    } else {
        ForgetPair(comparison.State, comparison.Scratch);
        ShowStepped(comparison, CurrentSide, NullForename::Empty);
    }
    // It may be of the same branch.
    if (IsOnShow(comparison, CompareSide))
        ShowPerson(comparison, CompareSide, ReadPerson(comparison, CompareSide, NullForename::Empty));
}

// False, with a box, when there is no such database; what was compared before stays then.
bool PointAtCompareDatabase(const DatabaseOpening& opening, DataControl& data, const QString& path)
{
    try {
        PointAtDatabase(opening, data, path);
        return true;
    } catch (const RuntimeError& refusal) {
        TellDatabaseRefused(opening, path, refusal);
        return false;
    }
}

void ShowFirstPair(const Comparison& comparison, const QString& name)
{
    comparison.State.sCompName = name;
    Records(comparison.Form3).MoveFirst();
    CompareRecords(comparison.Form6).MoveFirst();
    comparison.Scratch.ScanState = ComparePair::None;
    comparison.State.FieldStep = 1;
    comparison.State.ResetDone = 0;
    ShowComparePair(comparison);
    SetFieldCaptions(*comparison.Form6, u"Field: Surname"_s, u"Field: Surname"_s);
    ShowFields(*comparison.Form6, comparison.Form6->Text1.Text, comparison.Form6->Text3.Text);
    comparison.State.sCompField = Field::Surname.toString();
    ShowSearchState(*comparison.Form6, SearchState::Found);
}
} // namespace

bool TellIfComparesSibling(const BranchState& branch, Prompts& prompts)
{
    return TellIfAlternate(branch, prompts, u"Compare Record Data not available"_s,
                           u"Cannot compare this alternate Tree Branch Database record\n"
                           u"unless you de select this subject or change and open it's Tree Branch Database."_s);
}

void OpenComparison(const Comparison& comparison, Window<forms::Form1>& mainWindow)
{
    if (TellIfComparesSibling(comparison.Branch, comparison.Prompts) ||
        TellIfNoBranch(comparison.Branch, comparison.Form3, comparison.Prompts))
        return;
    if (Records(comparison.Form3).IsEmpty())
        return TellNoRecords(comparison.Prompts);
    Records(comparison.Form3).MoveFirst();
    ShowFirstCurrentRecord(comparison);
    mainWindow->Command5.Visible = true;
    comparison.State.ResetDone = 0;
    comparison.Form6->Show();
}

void ReturnToComparison(const Comparison& comparison, Window<forms::Form1>& mainWindow)
{
    if (!comparison.Form6.IsLoaded() || !comparison.Form6->Visible)
        return OpenComparison(comparison, mainWindow);
    if (TellIfComparesSibling(comparison.Branch, comparison.Prompts))
        return;
    if (HasRecord(comparison, CurrentSide))
        ShowCurrentAgain(comparison);
    comparison.Form6->Show();
}

void LoadComparison(const Comparison& comparison, const Screen& screen)
{
    forms::Form6& form = *comparison.Form6;
    FillScreen(form, screen, comparison.Form3, 400);
    form.Label2.Caption = comparison.Branch.sBranchName;
    comparison.Scratch.ScanState = ComparePair::None;
    comparison.State.ZNumberTable.Erase();
    comparison.State.SelBox = 0;
    comparison.State.sSelText.clear();
    comparison.State.ShownCurrent = comparison.State.ShownCompare = {};
}

void ChooseCompareBranch(CompareState& state, Window<forms::Form8>& listOfBranches)
{
    state.IsChoosing = true;
    listOfBranches->Show();
}

void WithdrawCompareRequest(CompareState& state)
{
    state.SearchMask = 0;
    state.IsChoosing = false;
}

void OpenCompareBranch(const Comparison& comparison, const DatabaseOpening& opening, const QString& name,
                       const QString& entry)
{
    WithdrawCompareRequest(comparison.State);
    if (Records(comparison.Form3).IsEmpty())
        return TellNoRecords(comparison.Prompts);
    const QString directory = comparison.Branch.HomeDir + DirectoryName(entry);
    if (!PointAtCompareDatabase(opening, comparison.Form6->Data1, DatabasePath(directory)))
        return;
    comparison.State.sCompDbFile = DirectoryName(entry) + u".mdb";
    comparison.State.sCompDir = directory + PathSeparator;
    if (!CompareRecords(comparison.Form6).IsEmpty())
        return ShowFirstPair(comparison, name);
    comparison.Form6->Label7.Caption = QString();
    ShowNothing(comparison.State, *comparison.Form6, CompareSide);
    comparison.Prompts.MsgBox(u"No Database records"_s, u"No Records in this Database"_s, Buttons::Information);
}

void LeaveComparison(forms::Form1& mainWindow)
{
    mainWindow.Show();
}

void CloseComparison(const ComparedSides& sides, Window<forms::Form1>& mainWindow)
{
    sides.Errors.Ignoring([&] { sides.Files.ChDir(sides.Branch.WorkDir); });
    sides.Form6.Unload();
    mainWindow->Command5.Visible = false;
    mainWindow->Show();
}

} // namespace lineforge
