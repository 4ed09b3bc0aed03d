#include "shell/branches/OpenBranch.h"

#include "compare/CompareBranch.h"
#include "forms/Form1.h"
#include "forms/Form8.h"
#include "map/items/MapFile.h"
#include "map/subjects/EnterBranch.h"
#include "map/tools/LeaveTools.h"
#include "program/branch/AliasList.h"
#include "program/branch/BranchPaths.h"
#include "program/ui/BranchUi.h"
#include "shell/branches/HomeInUse.h"

#include <QScopeGuard>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// By its name, compared exactly; empty when the table ends first.
// KEPT(OpenBranchTest.NameThatBeginsAnEarlierName_OpensTheEarlierBranch): the first entry that begins with the name
// wins, so that of "Smiths" and a later "Smith" the choice of "Smith" opens "Smiths".
// Mended, lists of older homes would open other branches.
QString FirstEntryThatBegins(const Program& p, const QString& name)
{
    int index = 0;
    while (!p.Alias.AliasTable[index].isEmpty() && !p.Alias.AliasTable[index].startsWith(name))
        ++index;
    return p.Alias.AliasTable[index];
}
} // namespace

void ChooseBranch(Program& p)
{
    if (!p.Branch.WorkDir.isEmpty())
        SaveBoxes(p.Map, p.Branch, p.Files);
    LeaveToolsIfOpen(p);
    WithdrawCompareRequest(p.Compare);
    p.Form8->Show();
}

void LoadBranchList(Program& p)
{
    p.Form8->Label1.Caption = u"Path: "_s + p.Branch.HomeDir;
    ReadAliasList(p);
    FillBranchList(p);
}

void OpenSelectedBranch(Program& p)
{
    const QString name = p.Form8->List1.Text();
    if (name.isEmpty()) {
        p.Form8.Unload();
        return;
    }
    p.Form8->Hide();
    // The list leaves the other windows free: tools may have been opened, or a mapping begun, since it was shown.
    if (!p.Compare.IsChoosing) {
        LeaveToolsIfOpen(p);
        ClearMapCursor(p.Tools, p.Screen);
    }
    p.Screen.Pointer = MousePointer::Hourglass;
    const auto pointerBack = qScopeGuard([&] { p.Screen.Pointer = MousePointer::Default; });
    const QString entry = FirstEntryThatBegins(p, name);
    if (entry.isEmpty())
        return;
    if (p.Compare.IsChoosing) {
        OpenCompareBranch(p, p, name, entry);
        return CloseBranchList(p);
    }

    const bool isOpen = EnterBranch(p, name, DirectoryName(entry));
    LeaveOtherHomes(p);
    if (!isOpen)
        return;
    EnableBranchUI(*p.Form1);
    p.Screen.Pointer = MousePointer::Default;
    if (!EmptySubjectIfNoRecords(p.Form1, p.Form3, p.Prompts))
        ShowFirstSubject(p, p);
    CloseBranchList(p);
}

void CloseBranchList(Program& p)
{
    WithdrawCompareRequest(p.Compare);
    p.Form8->List1.ListIndex = -1;
    p.Form8.Unload();
}

void ChangeHomeDirectory(Program& p)
{
    const std::optional<QString> file =
        p.Prompts.OpenFile({u"Select AliasList configuration File"_s, u"AliasList.cfg|AliasList.cfg|All Files|*.*|"_s});
    if (!file || p.Files.Dir(*file).isEmpty())
        return;

    constexpr qsizetype fileNameLength = 13;
    const QString home = file->chopped(std::min(fileNameLength, file->size()));
    if (!MayWorkIn(p.Processes, p.Prompts, home))
        return;
    const QString homeBefore = p.Branch.HomeDir;
    const QString workBefore = p.Branch.WorkDir;
    p.Branch.HomeDir = home;
    p.Form8->Label1.Caption = u"Path: "_s + p.Branch.HomeDir;
    ReadAliasList(p);
    if (p.Alias.AliasAttr == FileSystem::ReadOnly) {
        p.Branch.HomeDir = homeBefore;
        p.Branch.WorkDir = workBefore;
        p.Form8->Label1.Caption = u"Path: "_s + p.Branch.HomeDir;
        p.Alias.AliasAttr = 0;
    } else {
        // Also where a record of another branch is left after it.
        p.Branch.HomeDirSaved = p.Branch.HomeDir;
        FillBranchList(p);
    }
    LeaveOtherHomes(p);
}

} // namespace lineforge
