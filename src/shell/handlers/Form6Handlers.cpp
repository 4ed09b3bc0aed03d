#include "compare/CompareBranch.h"
#include "compare/CompareClipboard.h"
#include "compare/CompareSearch.h"
#include "compare/FieldCopy.h"
#include "forms/Form6.h"
#include "output/PrintWindow.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/Help.h"

namespace lineforge
{

namespace
{
// While the record of another branch is shown, the current side would be that branch.
Event OnOwnBranch(Program& p, void (*command)(Program& p))
{
    return [&p, command] {
        if (!TellIfComparesAlternate(p))
            command(p);
    };
}

void InstallMenus(Program& p, forms::Form6& form)
{
    form.mnuOpen.Click = OnOwnBranch(p, ChooseCompareBranch);
    form.mnuPrintScreen.Click = [&p] { PrintComparisonWindow(p); };
    form.mnuClose.Click = [&p] { CloseComparison(p); };
    form.mnuCut.Click = OnOwnBranch(p, CutCompareField);
    form.mnuCopy.Click = [&p] { CopyCompareSelection(p); };
    form.mnuPaste.Click = OnOwnBranch(p, PasteCompareField);
    form.mnuHelp.Click = [&p] { ShowHelpContents(p); };
}

void InstallSelection(Program& p, forms::Form6& form)
{
    int number = 0;
    for (TextBox* box : {&form.Text1, &form.Text2, &form.Text3, &form.Text4}) {
        ++number;
        box->Click = [&p, number] { RememberCompareSelection(p, number); };
    }
}
} // namespace

void InstallForm6(Program& p, forms::Form6& form)
{
    form.Load = [&p] { LoadComparison(p); };
    form.Unloading = [&p] { WithdrawCompareRequest(p); };
    // As the menu does: the map must know that the window has gone.
    form.CloseByFrame = [&p] { CloseComparison(p); };

    InstallMenus(p, form);
    InstallSelection(p, form);
    form.Command1.Click = OnOwnBranch(p, SearchCompare);
    form.Command2.Click = OnOwnBranch(p, ResetCompare);
    form.Command3.Click = OnOwnBranch(p, CopyField);
    form.Command4.Click = [&p] { LeaveComparison(p); };
    form.Command5.Click = OnOwnBranch(p, NextCompare);
    form.Command6.Click = OnOwnBranch(p, NextCurrent);
    form.Command7.Click = OnOwnBranch(p, CopyAllFields);
    form.Command8.Click = OnOwnBranch(p, AppendRecord);
    form.Data1.Stepped = [&p] { ShowSteppedRecord(p); };
}

} // namespace lineforge
