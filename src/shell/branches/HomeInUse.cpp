#include "shell/branches/HomeInUse.h"

#include "platform/files/FileSystem.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
bool IsAskedFor(Prompts& prompts, const QString& home)
{
    return prompts.MsgBox(u"Home Directory in use"_s,
                          u"Another Lineforge works in this Home Directory, and doesn't answer:\n"_s + home +
                              u"\nTwo of them may write over each other's maps.\nGo on all the same ?",
                          Buttons::QuestionYesNoDefaultNo) == Answer::Yes;
}
} // namespace

bool MayWorkIn(Processes& processes, Prompts& prompts, const QString& home)
{
    switch (processes.ClaimHome(home)) {
    case HomeOwner::ThisRun:
        return true;
    case HomeOwner::OtherOutOfReach:
        return IsAskedFor(prompts, home);
    case HomeOwner::OtherInFront:
        prompts.MsgBox(u"Home Directory in use"_s,
                       u"Lineforge is open in this Home Directory already, and has been called to the front:\n"_s +
                           home,
                       Buttons::Information);
        return false;
    }
    Q_UNREACHABLE();
}

void LeaveOtherHomes(Processes& processes, const BranchState& branch)
{
    QStringList homes{branch.HomeDir};
    for (const QString& directory : {branch.WorkDir, branch.WorkDirSaved})
        if (!directory.isEmpty())
            homes << directory.first(directory.lastIndexOf(PathSeparator) + 1);
    processes.LeaveHomesBut(homes);
}

} // namespace lineforge
