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
void ShowFirstCurrentRecord(Program& p)
{
    const PersonTexts person = ReadPerson(p, CurrentSide, NullForename::Empty);
    ShowPerson(p, CurrentSide, person);
    ShowField(p, CurrentSide, person.Surname);
    p.Form6->Frame5.Caption = u"Field: Surname"_s;
}

// What is copied or cut is the record at which the cursor stands, wherever it has gone meanwhile. The same record keeps
// its field and its pair.
void ShowCurrentAgain(Program& p)
{
    // What has been typed on the record form meanwhile is seen here as well.
    p.Errors.Ignoring([&] { StoreTyped(p.Form3); });
    if (IsOnShow(p, CurrentSide)) {
        ShowPerson(p, CurrentSide, ReadPerson(p, CurrentSide, NullForename::Empty));
    } else {
        ForgetPair(p);
        ShowStepped(p, CurrentSide, NullForename::Empty);
    }
    // It may be of the same branch.
    if (IsOnShow(p, CompareSide))
        ShowPerson(p, CompareSide, ReadPerson(p, CompareSide, NullForename::Empty));
}

// False, with a box, when there is no such database; what was compared before stays then.
bool PointAtCompareDatabase(Program& p, const QString& path)
{
    try {
        PointAtDatabase(p, p.Form6->Data1, path);
        return true;
    } catch (const RuntimeError& refusal) {
        TellDatabaseRefused(p, path, refusal);
        return false;
    }
}

void ShowFirstPair(Program& p, const QString& name)
{
    p.Compare.sCompName = name;
    Records(p.Form3).MoveFirst();
    CompareRecords(p).MoveFirst();
    p.Scratch.ScanState = ComparePair::None;
    p.Compare.FieldStep = 1;
    p.Compare.ResetDone = 0;
    ShowComparePair(p);
    SetFieldCaptions(p, u"Field: Surname"_s, u"Field: Surname"_s);
    ShowFields(p, p.Form6->Text1.Text, p.Form6->Text3.Text);
    p.Compare.sCompField = Field::Surname.toString();
    ShowSearchState(p, SearchState::Found);
}
} // namespace

bool TellIfComparesAlternate(Program& p)
{
    return TellIfAlternate(p.Branch, p.Prompts, u"Compare Record Data not available"_s,
                           u"Cannot compare this alternate Tree Branch Database record\n"
                           u"unless you de select this subject or change and open it's Tree Branch Database."_s);
}

void OpenComparison(Program& p)
{
    if (TellIfComparesAlternate(p) || TellIfNoBranch(p.Branch, p.Form3, p.Prompts))
        return;
    if (Records(p.Form3).IsEmpty())
        return TellNoRecords(p.Prompts);
    Records(p.Form3).MoveFirst();
    ShowFirstCurrentRecord(p);
    p.Form1->Command5.Visible = true;
    p.Compare.ResetDone = 0;
    p.Form6->Show();
}

void ReturnToComparison(Program& p)
{
    if (!p.Form6.IsLoaded() || !p.Form6->Visible)
        return OpenComparison(p);
    if (TellIfComparesAlternate(p))
        return;
    if (HasRecord(p, CurrentSide))
        ShowCurrentAgain(p);
    p.Form6->Show();
}

void LoadComparison(Program& p)
{
    forms::Form6& form = *p.Form6;
    FillScreen(form, p.Screen, p.Form3, 400);
    form.Label2.Caption = p.Branch.sBranchName;
    p.Scratch.ScanState = ComparePair::None;
    p.Compare.ZNumberTable.Erase();
    p.Compare.SelBox = 0;
    p.Compare.sSelText.clear();
    p.Compare.ShownCurrent = p.Compare.ShownCompare = {};
}

void ChooseCompareBranch(Program& p)
{
    p.Compare.IsChoosing = true;
    p.Form8->Show();
}

void WithdrawCompareRequest(Program& p)
{
    p.Compare.SearchMask = 0;
    p.Compare.IsChoosing = false;
}

void OpenCompareBranch(Program& p, const QString& name, const QString& entry)
{
    WithdrawCompareRequest(p);
    if (Records(p.Form3).IsEmpty())
        return TellNoRecords(p.Prompts);
    const QString directory = p.Branch.HomeDir + DirectoryName(entry);
    if (!PointAtCompareDatabase(p, DatabasePath(directory)))
        return;
    p.Compare.sCompDbFile = DirectoryName(entry) + u".mdb";
    p.Compare.sCompDir = directory + PathSeparator;
    if (!CompareRecords(p).IsEmpty())
        return ShowFirstPair(p, name);
    p.Form6->Label7.Caption = QString();
    ShowNothing(p, CompareSide);
    p.Prompts.MsgBox(u"No Database records"_s, u"No Records in this Database"_s, Buttons::Information);
}

void LeaveComparison(Program& p)
{
    p.Form1->Show();
}

void CloseComparison(Program& p)
{
    p.Errors.Ignoring([&] { p.Files.ChDir(p.Branch.WorkDir); });
    p.Form6.Unload();
    p.Form1->Command5.Visible = false;
    p.Form1->Show();
}

} // namespace lineforge
