#include "compare/CompareBranch.h"

#include "compare/CompareKeys.h"
#include "compare/SearchButton.h"
#include "compare/Sides.h"
#include "program/AlternateBranch.h"
#include "program/BranchPaths.h"
#include "program/BranchUi.h"
#include "program/OldDatabase.h"
#include "program/WorkDatabase.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// Unlike a step to a record this takes a forename that is Null.
void ShowFirstCurrentRecord(Program& p)
{
    forms::Form6& form = *p.Form6;
    const Recordset& record = Records(p);
    const QString file = record.Text(u"File");
    const QString surname = record.Text(u"Surname");
    form.Label4.Caption = file;
    ShowPicture(p, CurrentSide, file);
    ShowField(p, CurrentSide, surname);
    form.Text1.Text = surname;
    form.Text5.Text = record.Text(u"Forename");
    form.Frame5.Caption = u"Field: Surname"_s;
    p.Compare.sCompField = u"Surname"_s;
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
    p.Form6->Label7.Caption = name;
    Records(p).MoveFirst();
    CompareRecords(p).MoveFirst();
    p.Scratch.ScanState = ComparePair::None;
    p.Compare.FieldStep = 1;
    p.Compare.ResetDone = 0;
    ShowRecord(p, CurrentSide);
    ShowRecord(p, CompareSide);
    SetFieldCaptions(p, u"Field: Surname"_s, u"Field: Surname"_s);
    ShowFields(p, p.Form6->Text1.Text, p.Form6->Text3.Text);
    p.Compare.sCompField = u"Surname"_s;
    ShowSearchState(p, SearchState::Found);
}
} // namespace

bool TellIfComparesAlternate(Program& p)
{
    return TellIfAlternate(p, u"Compare Record Data not available"_s,
                           u"Cannot compare this alternate Tree Branch Database record\n"
                           u"unless you de select this subject or change and open it's Tree Branch Database."_s);
}

void OpenComparison(Program& p)
{
    if (TellIfComparesAlternate(p) || TellIfNoBranch(p))
        return;
    if (Records(p).IsEmpty())
        return TellNoRecords(p);
    Records(p).MoveFirst();
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
    // What is copied or cut is the record at which the cursor stands, wherever it has gone meanwhile.
    if (Records(p).HasRow() && Records(p).Text(u"File") != p.Form6->Label4.Caption.value())
        p.Errors.Ignoring([&] { ShowStepped(p, CurrentSide); });
    p.Form6->Show();
}

void LoadComparison(Program& p)
{
    forms::Form6& form = *p.Form6;
    FillScreen(p, form, 400);
    form.Label2.Caption = p.Branch.sBranchName;
    p.Scratch.ScanState = ComparePair::None;
    p.Compare.ZNumberTable.Erase();
    p.Compare.SelBox = 0;
    p.Compare.sSelText.clear();
}

void ChooseCompareBranch(Program& p)
{
    p.Compare.SearchMask = CompareRequest;
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
    const QString directory = p.Branch.HomeDir + DirectoryName(entry);
    if (!PointAtCompareDatabase(p, DatabasePath(directory)))
        return;
    p.Compare.sCompDbFile = DirectoryName(entry) + u".mdb";
    p.Compare.sCompDir = directory + PathSeparator;
    if (CompareRecords(p).IsEmpty()) {
        p.Form6->Label7.Caption = QString();
        ShowNothing(p, CompareSide);
        p.Prompts.MsgBox(u"No Database records"_s, u"No Records in this Database"_s, Buttons::Information);
    } else if (Records(p).IsEmpty()) {
        TellNoRecords(p);
    } else {
        ShowFirstPair(p, name);
    }
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
