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

void LeaveOtherHomes(Program& p)
{
    QStringList homes{p.Branch.HomeDir};
    const QString own = p.Branch.IsSiblingShown() ? p.Branch.WorkDirSaved : p.Branch.WorkDir;
    const QString compared = p.Form6.IsLoaded() ? p.Compare.sCompDir : QString(); // with a trailing separator
    for (const QString& directory : {own, compared})
        if (!directory.isEmpty())
            homes << directory.first(directory.lastIndexOf(PathSeparator, -2) + 1);
    p.Processes.LeaveHomesBut(homes);
}

} // namespace lineforge
