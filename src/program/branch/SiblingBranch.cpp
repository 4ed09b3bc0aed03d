#include "program/branch/SiblingBranch.h"

#include "forms/Form3.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/OldDatabase.h"
#include "program/branch/WorkDatabase.h"

#include <QScopeGuard>

#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// Opens the database of the branch that `point` points the program at, or leaves it pointed where it was.
template <class Point>
void PointAtBranch(const BranchAccess& access, const Point& point)
{
    StoreTyped(access.Form3);
    auto pointBack = qScopeGuard([&access, before = access.Branch] { access.Branch = before; });
    point();
    OpenWorkDatabase(access);
    pointBack.dismiss();
}
} // namespace

void SwapBranchDirs(BranchState& branch)
{
    std::swap(branch.WorkDir, branch.WorkDirSaved);
    std::swap(branch.HomeDir, branch.HomeDirSaved);
}

bool TakeOldSibling(const BranchAccess& access, QStringView letter)
{
    const QString database = DatabasePath(SiblingDirectory(access.Branch.WorkDir, letter));
    try {
        ConvertIfOld(access, database, OldDatabaseUse::Command);
        return true;
    } catch (const RuntimeError& refusal) {
        TellDatabaseRefused(access, database, refusal);
        return false;
    }
}

bool RequireSibling(const BranchAccess& access, QStringView letter)
{
    const bool isImported = IsImported(access.Branch.WorkDir);
    const QString directory = (isImported ? u"Import_"_s : u"LfgDat_"_s) + letter;
    const QString database = DatabasePath(access.Branch.HomeDir + directory);
    if (!access.Files.Dir(database).isEmpty())
        return TakeOldSibling(access, letter);
    if (isImported)
        access.Prompts.MsgBox(u"External Import Record not present."_s,
                              u"Cannot Access External Imported Database subject."_s, Buttons::Information);
    else
        access.Prompts.MsgBox(u"External Record not present."_s,
                              u"Cannot Access this External Database and subject.\n"_s + database + u" not present.",
                              Buttons::Information);
    return false;
}

void KeepOwnDirectories(BranchState& branch)
{
    if (branch.IsSiblingShown())
        return;
    branch.WorkDirSaved = branch.WorkDir;
    branch.HomeDirSaved = branch.HomeDir;
}

void SwitchToSibling(const BranchAccess& access, QStringView letter)
{
    PointAtBranch(access, [&] {
        KeepOwnDirectories(access.Branch);
        access.Branch.WorkDir = SiblingDirectory(access.Branch.WorkDir, letter);
    });
    access.Branch.UsingAlternate = 1;
    DisableTransport(*access.Form3);
}

void DisableTransport(forms::Form3& form)
{
    for (Button forms::Form3::*transport : forms::Form3::Transport)
        (form.*transport).Enabled = false;
}

void OpenOwnBranch(const BranchAccess& access)
{
    PointAtBranch(access, [&access] {
        access.Branch.WorkDir = access.Branch.WorkDirSaved;
        access.Branch.HomeDir = access.Branch.HomeDirSaved;
    });
}

void OpenSwappedBranch(const BranchAccess& access)
{
    PointAtBranch(access, [&access] { SwapBranchDirs(access.Branch); });
}

void EndAlternate(BranchState& branch, Window<forms::Form3>& recordForm)
{
    branch.UsingAlternate = 0;
    for (Button forms::Form3::*transport : forms::Form3::Transport) {
        Button& button = (*recordForm).*transport;
        button.Enabled = true;
        button.Visible = true; // the gallery has hidden them if it was left for the records
    }
}

void ReturnFromSibling(const BranchAccess& access)
{
    OpenOwnBranch(access);
    EndAlternate(access.Branch, access.Form3);
}

bool TellIfAlternate(const BranchState& branch, Prompts& prompts, const QString& title, const QString& text)
{
    if (!branch.IsSiblingShown())
        return false;
    prompts.MsgBox(title, text, Buttons::Information);
    return true;
}

} // namespace lineforge
