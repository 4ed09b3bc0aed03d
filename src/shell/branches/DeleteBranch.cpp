#include "shell/branches/DeleteBranch.h"

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "gallery/GalleryFile.h"
#include "map/subjects/EnterBranch.h"
#include "map/subjects/SubjectPanel.h"
#include "map/tools/LeaveTools.h"
#include "platform/files/DirectoryFiles.h"
#include "program/branch/AliasList.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The first question, and what takes its place.
Answer ShowFirstBox(Program& p, const QString& name, const QString& text, Buttons buttons)
{
    return p.Prompts.MsgBox(u"Delete '"_s + name + u"' DataBase and Galleries", text, buttons);
}

// Of the branch whose map is shown.
QString MapsDirectory(const Program& p)
{
    return p.Branch.IsSiblingShown() ? p.Branch.WorkDirSaved : p.Branch.WorkDir;
}

// A record transfer can have gone over to another branch than the one that the program is named after. The list of
// another home tells nothing of it.
QString NameOfBranch(const Program& p)
{
    const QString directory = MapsDirectory(p);
    return IsBranchDirectory(directory, p.Branch.HomeDir) ? ListedName(p.Alias, p.Branch, DirectoryName(directory))
                                                          : p.Branch.sBranchName;
}

// Whether a branch is open, in a directory of its own beneath the home directory: that may be another one since it was
// opened, whose registry knows nothing of it. Tells the user when not.
bool RequireBranch(Program& p, const QString& name)
{
    const QString directory = MapsDirectory(p);
    if (IsBranchDirectory(directory, p.Branch.HomeDir))
        return true;
    if (directory.isEmpty())
        TellNoBranch(p.Prompts);
    else
        ShowFirstBox(p, name,
                     u"Cannot delete '"_s + name + u"' Tree Branch. Its Directory\n" + directory +
                         u"\nis not in the Home Directory in use:\n" + p.Branch.HomeDir,
                     Buttons::Information);
    return false;
}

bool Ask(Program& p, const QString& name)
{
    return ShowFirstBox(p, name,
                        u"Do you really want to delete the Database\nand Gallery files in '"_s + name +
                            u"' Tree Branch ?",
                        Buttons::QuestionYesNo) == Answer::Yes;
}

bool AskAgain(Program& p, const QString& name)
{
    return p.Prompts.MsgBox(u"Deletion of '"_s + name + u"' Database, Gallery and Files",
                            u"All files in "_s + p.Branch.WorkDir + u"\n'" + name +
                                u"' Ancestral Tree Branch will be deleted.\n"
                                u"This includes the Database, Gallery and its Directories\n"
                                u"Are you sure this is what you want ? ",
                            Buttons::ErrorYesNo) == Answer::Yes;
}

void RemoveDirectory(Program& p, const QString& directory)
{
    RemoveWithFiles(p.Files.Resolve(directory), p.Files.Resolve(p.Branch.HomeDir));
}

void ShowNoBranch(Program& p)
{
    forms::Form1& form = *p.Form1;
    EmptySubjectPanel(*p.Form1, EmptiedBy::DeleteBranch);
    form.Shape1.Visible = false;
    form.Caption = u"Lineforge. "_s;
}
} // namespace

void DeleteBranch(Program& p)
{
    const QString name = NameOfBranch(p);
    if (!RequireBranch(p, name) || !Ask(p, name))
        return;
    ReturnToOwnSubject(p, p);
    if (!AskAgain(p, name))
        return;
    LeaveToolsIfOpen(p);

    const QString directory = p.Branch.WorkDir;
    RemoveDirectory(p, GalleryDirectory(directory));
    RemoveAlias(p, name, DirectoryName(directory));
    if (p.Form3.IsLoaded()) {
        p.Form3->Caption = u"Lineforge. "_s;
        // What is typed goes with its record; refused by the database, it would hold the form and the file.
        p.Form3->Data1.GiveUpEdits();
    }
    // Before the labels are emptied, which hang on its records.
    p.Errors.Ignoring([&] { p.Form3.Unload(); });
    ShowNoBranch(p);
    p.Errors.Ignoring([&] { p.Files.ChDir(p.Branch.HomeDir); });
    RemoveDirectory(p, directory);
    p.Branch.WorkDir.clear();
    p.Branch.WorkDirLen = 0;
    p.Form1->Picture1.Cls();
}

} // namespace lineforge
