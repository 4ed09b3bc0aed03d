#include "shell/branches/NewBranch.h"

#include "forms/Form1.h"
#include "forms/Form4.h"
#include "forms/Form6.h"
#include "gallery/GalleryFile.h"
#include "map/items/MapFile.h"
#include "map/items/MapParse.h"
#include "map/subjects/EnterBranch.h"
#include "map/subjects/SubjectPanel.h"
#include "map/tools/LeaveTools.h"
#include "platform/base/Text.h"
#include "program/branch/AliasList.h"
#include "program/branch/EmptyTable.h"
#include "program/branch/MakeDirectory.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/BranchUi.h"
#include "shell/branches/HomeInUse.h"

#include <QScopeGuard>

#include <tuple>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr QStringView letters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr QStringView ordinaryPrefix = u"LfgDat_";

void PutOldMapAway(Program& p)
{
    if (!p.Branch.WorkDir.isEmpty())
        SaveBoxes(p.Map, p.Branch, p.Files);
    LeaveToolsIfOpen(p);
    StoreTyped(p.Form3);
    // Whoever gives the command up stays in the branch that he has open.
    ReturnToOwnSubject(p, p);
    PutMapAway(p);
}

// Marks the letters of all branch directories; false, and a box, when the last letter is among them. The table counts
// as full then, even with gaps below.
bool MarkTakenLetters(Program& p)
{
    p.Files.ChDir(p.Branch.HomeDir);
    for (const QString& name : p.Files.Directories(u"*"_s)) {
        if (!SameText(name.left(ordinaryPrefix.size()), ordinaryPrefix))
            continue;
        if (SameText(name, u"LFGDAT_Z")) {
            p.Prompts.MsgBox(u"Directory Table Full."_s,
                             u"Last Directory(LFGDAT_Z) used. You need to have space for a new directory(maximum 26 "
                             u"allowed).Contact software vendor for support."_s,
                             Buttons::Information);
            return false;
        }
        if (const qsizetype letter = letters.indexOf(name.back().toUpper()); letter >= 0)
            p.Branch.TakenLetters[static_cast<int>(letter) + 1] = true;
    }
    return true;
}

QChar FirstFreeLetter(const Program& p)
{
    int slot = 1;
    while (p.Branch.TakenLetters[slot])
        ++slot;
    return letters[slot - 1];
}

bool Confirm(Program& p, const QString& name, const QString& directory)
{
    const QString text = u"New '"_s + name +
                         u"' Tree Branch Database and new map file will be \nplaced in new Directory " +
                         p.Branch.HomeDir + directory + u".\nNew '" + name +
                         u"' Subject and Gallery files will be copied to this \ndirectory when presented.";
    return p.Prompts.MsgBox(name + u" Tree Branch new Directory and Files", text, Buttons::InformationOkCancel) ==
           Answer::Ok;
}

// False, and a box, when the directory is there already.
bool MakeDirectories(Program& p)
{
    if (!MakeDirectory(p.Files, p.Branch.WorkDir)) {
        // KEPT(MadeBranchTest.DirectoryThatIsThereAfterAll_StopsTheCommand_AndIsNotTouched): the text has the name of a
        // variable, and the signs around it, where the directory's name should stand.
        // Mended, the box would name the directory.
        p.Prompts.MsgBox(u"Error Setting New Directory"_s, u" sDir & ' directory already exists.'"_s,
                         Buttons::Information);
        return false;
    }
    p.Files.MkDir(GalleryDirectory(p.Branch.WorkDir));
    return true;
}

void ShowNoSubject(Program& p)
{
    p.Form1->Shape1.Visible = false;
    EmptySubjectPanel(*p.Form1, EmptiedBy::NewBranch);
    p.Form4->Hide();
}

void NameBranch(Program& p, const QString& name, const QString& directory)
{
    p.Branch.sBranchName = name;
    p.Branch.WorkDir = p.Branch.HomeDir + directory;
    p.Branch.WorkDirLen = static_cast<int>(p.Branch.WorkDir.size());
    p.Scratch.sNewDir = directory;
}

// False when the directory is there already: it is what the variables tell then. What the disk refuses leaves the
// branch that was open in them.
bool MakeFiles(Program& p, const QString& name, const QString& directory, const QString& stem)
{
    auto branchBack = qScopeGuard([&p, before = p.Branch] { p.Branch = before; });
    NameBranch(p, name, directory);
    const bool isMade = MakeDirectories(p);
    if (isMade) {
        p.Files.FileCopy(p.Branch.HomeDir + u"LfgEmpt.~cf", stem + u".cfg");
        p.Files.FileCopy(p.Branch.HomeDir + u"LfgEmpt.~Md", stem + u".mdb");
    }
    branchBack.dismiss();
    return isMade;
}

void MakeBranch(Program& p, const QString& name, const QString& directory)
{
    // Not by the current directory: while the user is asked the scanner can take it to the branch that he has open.
    const QString stem = p.Branch.HomeDir + directory + PathSeparator + directory;
    if (!MakeFiles(p, name, directory, stem))
        return;
    p.Branch.sDbaseName = stem + u".mdb";
    PointAtDatabase(p, p.Branch.sDbaseName);
    if (p.Form6.IsLoaded())
        p.Form6->Label2.Caption = name;

    ShowNoSubject(p);
    AddAlias(p, name, directory, Refusals::EndIt);
    Concerning(stem + u".cfg", [&p] {
        ReadMapFile(p.Map, p.Branch, p.Files, p.Prompts);
        ParseBoxes(p);
        ParseLines(p);
        ParseTexts(p);
    });
    LeaveOtherHomes(p);
    EnableBranchUI(*p.Form1);
    std::ignore = TellIfEmptyTable(Records(p.Form3), p.Prompts); // nothing is left to be done
}
} // namespace

void NewBranch(Program& p)
{
    PutOldMapAway(p);
    if (!MarkTakenLetters(p))
        return;
    const QString directory = ordinaryPrefix + FirstFreeLetter(p);
    const QString name =
        AskBranchName(p.Alias, p.Prompts, u"New Tree Branch name"_s, u"Enter the name for this new Tree Branch Map"_s);
    if (name.isEmpty() || !Confirm(p, name, directory))
        return;
    MakeBranch(p, name, directory);
}

} // namespace lineforge
