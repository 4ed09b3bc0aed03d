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
void PointAtBranch(Program& p, const Point& point)
{
    StoreTyped(p);
    auto pointBack = qScopeGuard([&p, before = p.Branch] { p.Branch = before; });
    point();
    OpenWorkDatabase(p);
    pointBack.dismiss();
}
} // namespace

void SwapBranchDirs(Program& p)
{
    std::swap(p.Branch.WorkDir, p.Branch.WorkDirSaved);
    std::swap(p.Branch.HomeDir, p.Branch.HomeDirSaved);
}

bool TakeOldSibling(Program& p, QStringView letter)
{
    const QString database = DatabasePath(SiblingDirectory(p.Branch.WorkDir, letter));
    try {
        ConvertIfOld(p, database, OldDatabaseUse::Command);
        return true;
    } catch (const RuntimeError& refusal) {
        TellDatabaseRefused(p, database, refusal);
        return false;
    }
}

bool RequireSibling(Program& p, QStringView letter)
{
    const bool isImported = IsImported(p.Branch.WorkDir);
    const QString directory = (isImported ? u"Import_"_s : u"LfgDat_"_s) + letter;
    const QString database = DatabasePath(p.Branch.HomeDir + directory);
    if (!p.Files.Dir(database).isEmpty())
        return TakeOldSibling(p, letter);
    if (isImported)
        p.Prompts.MsgBox(u"External Import Record not present."_s,
                         u"Cannot Access External Imported Database subject."_s, Buttons::Information);
    else
        p.Prompts.MsgBox(u"External Record not present."_s,
                         u"Cannot Access this External Database and subject.\n"_s + database + u" not present.",
                         Buttons::Information);
    return false;
}

void KeepOwnDirectories(Program& p)
{
    if (p.Branch.IsSiblingShown())
        return;
    p.Branch.WorkDirSaved = p.Branch.WorkDir;
    p.Branch.HomeDirSaved = p.Branch.HomeDir;
}

void SwitchToSibling(Program& p, QStringView letter)
{
    PointAtBranch(p, [&] {
        KeepOwnDirectories(p);
        p.Branch.WorkDir = SiblingDirectory(p.Branch.WorkDir, letter);
    });
    p.Branch.UsingAlternate = 1;
    DisableTransport(p);
}

void DisableTransport(Program& p)
{
    for (Button forms::Form3::*transport : forms::Form3::Transport)
        ((*p.Form3).*transport).Enabled = false;
}

void OpenOwnBranch(Program& p)
{
    PointAtBranch(p, [&p] {
        p.Branch.WorkDir = p.Branch.WorkDirSaved;
        p.Branch.HomeDir = p.Branch.HomeDirSaved;
    });
}

void OpenSwappedBranch(Program& p)
{
    PointAtBranch(p, [&p] { SwapBranchDirs(p); });
}

void EndAlternate(Program& p)
{
    p.Branch.UsingAlternate = 0;
    for (Button forms::Form3::*transport : forms::Form3::Transport) {
        Button& button = (*p.Form3).*transport;
        button.Enabled = true;
        button.Visible = true; // the gallery has hidden them if it was left for the records
    }
}

void ReturnFromSibling(Program& p)
{
    OpenOwnBranch(p);
    EndAlternate(p);
}

bool TellIfAlternate(Program& p, const QString& title, const QString& text)
{
    if (!p.Branch.IsSiblingShown())
        return false;
    p.Prompts.MsgBox(title, text, Buttons::Information);
    return true;
}

} // namespace lineforge
