#include "compare/CompareBranch.h"
#include "compare/CompareClipboard.h"
#include "compare/CompareSearch.h"
#include "compare/FieldCopy.h"
#include "output/PrintBranch.h"
#include "shell/Help.h"
#include "shell/handlers/Handlers.h"

namespace lineforge
{

namespace
{
void InstallMenus(Program& p, forms::Form6& form)
{
    form.mnuOpen.Click = [&p] { ChooseCompareBranch(p); };
    form.mnuPrintScreen.Click = [&p] { PrintComparisonWindow(p); };
    form.mnuClose.Click = [&p] { CloseComparison(p); };
    form.mnuCut.Click = [&p] { CutCompareField(p); };
    form.mnuCopy.Click = [&p] { CopyCompareSelection(p); };
    form.mnuPaste.Click = [&p] { PasteCompareField(p); };
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
    // As the menu does: the map must know that the window has gone.
    form.CloseByFrame = [&p] { CloseComparison(p); };

    InstallMenus(p, form);
    InstallSelection(p, form);
    form.Command1.Click = [&p] { SearchCompare(p); };
    form.Command2.Click = [&p] { ResetCompare(p); };
    form.Command3.Click = [&p] { CopyField(p); };
    form.Command4.Click = [&p] { LeaveComparison(p); };
    form.Command5.Click = [&p] { NextCompare(p); };
    form.Command6.Click = [&p] { NextCurrent(p); };
    form.Command7.Click = [&p] { CopyAllFields(p); };
    form.Command8.Click = [&p] { AppendRecord(p); };
    form.Data1.Stepped = [&p] { ShowSteppedRecord(p); };
}

} // namespace lineforge
