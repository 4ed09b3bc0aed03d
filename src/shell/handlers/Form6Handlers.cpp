#include "compare/CompareBranch.h"
#include "compare/CompareClipboard.h"
#include "compare/CompareSearch.h"
#include "compare/FieldCopy.h"
#include "forms/Form1.h"
#include "forms/Form6.h"
#include "output/PrintWindow.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/Help.h"

namespace lineforge
{

namespace
{
// While the record of another branch is shown, the current side would be that branch.
Event OnOwnBranch(Program& p, const Event& command)
{
    return [&p, command] {
        if (!TellIfComparesSibling(p.Branch, p.Prompts))
            command();
    };
}

Event OnOwnBranch(Program& p, void (*command)(const Comparison& comparison))
{
    return OnOwnBranch(p, Event([&p, command] { command(p); }));
}

void InstallMenus(Program& p, forms::Form6& form)
{
    form.mnuOpen.Click = OnOwnBranch(p, [&p] { ChooseCompareBranch(p.Compare, p.Form8); });
    form.mnuPrintScreen.Click = [&p, &form] { PrintComparisonWindow(form, p.Printer, p.Errors, p.Prompts); };
    form.mnuClose.Click = [&p] { CloseComparison(p, p.Form1); };
    form.mnuCut.Click = OnOwnBranch(p, [&p] { CutCompareField(p, p.Clipboard); });
    form.mnuCopy.Click = [&p] { CopyCompareSelection(p.Compare, p.Clipboard); };
    form.mnuPaste.Click = OnOwnBranch(p, [&p] { PasteCompareField(p, p.Clipboard); });
    form.mnuHelp.Click = [&p] { ShowHelpContents(p.Prompts, p.Branch); };
}

void InstallSelection(Program& p, forms::Form6& form)
{
    int number = 0;
    for (TextBox* box : {&form.Text1, &form.Text2, &form.Text3, &form.Text4}) {
        ++number;
        box->Click = [&p, &form, number] { RememberCompareSelection(p.Compare, form, number); };
    }
}
} // namespace

void InstallForm6(Program& p, forms::Form6& form)
{
    form.Load = [&p] { LoadComparison(p, p.Screen); };
    form.Unloading = [&p] { WithdrawCompareRequest(p.Compare); };
    // As the menu does: the map must know that the window has gone.
    form.CloseByFrame = [&p] { CloseComparison(p, p.Form1); };

    InstallMenus(p, form);
    InstallSelection(p, form);
    form.Command1.Click = OnOwnBranch(p, SearchCompare);
    form.Command2.Click = OnOwnBranch(p, ResetCompare);
    form.Command3.Click = OnOwnBranch(p, CopyField);
    form.Command4.Click = [&p] { LeaveComparison(*p.Form1); };
    form.Command5.Click = OnOwnBranch(p, NextCompare);
    form.Command6.Click = OnOwnBranch(p, NextCurrent);
    form.Command7.Click = OnOwnBranch(p, CopyAllFields);
    form.Command8.Click = OnOwnBranch(p, AppendRecord);
    form.Data1.Stepped = [&p] { ShowSteppedRecord(p); };
}

} // namespace lineforge
