#include "shell/OpenBranch.h"

#include "compare/CompareBranch.h"
#include "map/CurrentBox.h"
#include "map/MapFile.h"
#include "map/MapItems.h"
#include "map/MapParse.h"
#include "map/SubjectPanel.h"
#include "map/tools/LeaveTools.h"
#include "program/AliasList.h"
#include "program/BranchPaths.h"
#include "program/BranchUi.h"
#include "program/WorkDatabase.h"
#include "shell/EmptyTable.h"

#include <QScopeGuard>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The first entry that begins with the name, compared exactly, so that of "Smiths" and a later "Smith" the choice of
// "Smith" opens "Smiths"; so it is meant to be. Empty when the table ends first.
QString EntryOf(const Program& p, const QString& name)
{
    int index = 0;
    while (!p.Alias.AliasTable[index].isEmpty() && !p.Alias.AliasTable[index].startsWith(name))
        ++index;
    return p.Alias.AliasTable[index];
}

void ClearMap(Program& p)
{
    p.Form1->Shape1.Visible = false;
    p.Form1->Picture1.Cls();
    ResetMapFont(p.Form1->Picture1);
    EraseMap(p);
    p.Branch.UsingAlternate = 0;
}

// False, and a box, when the branch's database can't be opened.
bool OpenDatabase(Program& p, const QString& entry)
{
    p.Branch.WorkDir = p.Branch.HomeDir + DirectoryName(entry);
    p.Branch.WorkDirLen = static_cast<int>(p.Branch.WorkDir.size());
    p.Branch.sDbaseName = u"LfgDat_"_s + BranchLetter(p.Branch.WorkDir) + u".mdb";
    try {
        p.Files.ChDir(p.Branch.WorkDir);
        PointAtDatabase(p, p.Branch.WorkDir + PathSeparator + p.Branch.sDbaseName);
        return true;
    } catch (const RuntimeError&) {
        p.Prompts.MsgBox(u"Read Only or Incorrect Database"_s, u"Cannot open this database"_s, Buttons::Information);
        return false;
    }
}

void DrawMap(Program& p)
{
    p.Errors.Ignoring([&] { ReadMapFile(p); });
    p.Errors.Ignoring([&] { ParseBoxes(p); });
    p.Errors.Ignoring([&] { ParseLines(p); });
    p.Errors.Ignoring([&] { ParseTexts(p); });
    EnableBranchUI(p);
}

void ShowNoSubject(Program& p)
{
    EmptySubjectLabels(p,
                       {&forms::Form1::Label9, &forms::Form1::Label10, &forms::Form1::Label11, &forms::Form1::Label12,
                        &forms::Form1::Label14, &forms::Form1::Label17},
                       u"Ref  "_s);
    // The picture of the branch before would stand for nobody here.
    p.Form1->Image1.Picture = QImage();
}

void ShowFirstSubject(Program& p)
{
    forms::Form1& form = *p.Form1;
    SetPictureName(p);
    bool hasPicture = false;
    p.Errors.Ignoring([&] {
        LoadSubjectPicture(p, form.Image1);
        hasPicture = true;
    });
    p.Errors.Ignoring([&] { MarkCurrentBox(p); });
    p.Errors.Ignoring([&] { FillSubjectLabels(p); });
    form.Caption = u"Lineforge "_s + p.Branch.sBranchName + u" Tree Branch.";
    p.Form3->Caption = u"Lineforge "_s + p.Branch.sBranchName + u" Records.";
    if (!hasPicture) {
        form.Image1.Picture = QImage();
        form.Shape1.Visible = false;
        TellPictureMissing(p);
    }
}
} // namespace

void ChooseBranch(Program& p)
{
    if (!p.Branch.WorkDir.isEmpty())
        SaveBoxes(p);
    LeaveToolsIfOpen(p);
    WithdrawCompareRequest(p);
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
        ClearMapCursor(p);
    }
    p.Screen.Pointer = MousePointer::Hourglass;
    const auto pointerBack = qScopeGuard([&] { p.Screen.Pointer = MousePointer::Default; });
    const QString entry = EntryOf(p, name);
    if (entry.isEmpty())
        return;
    if (p.Compare.IsChoosing) {
        OpenCompareBranch(p, name, entry);
        return CancelBranchList(p);
    }

    p.Branch.sBranchName = name;
    ClearMap(p);
    if (!OpenDatabase(p, entry))
        return;
    p.Form6->Label2.Caption = name;
    DrawMap(p);
    p.Screen.Pointer = MousePointer::Default;

    if (TellIfEmpty(p))
        ShowNoSubject(p);
    else
        ShowFirstSubject(p);
    CancelBranchList(p);
}

void CancelBranchList(Program& p)
{
    WithdrawCompareRequest(p);
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
    const QString homeBefore = p.Branch.HomeDir;
    const QString workBefore = p.Branch.WorkDir;
    p.Branch.HomeDir = file->chopped(std::min(fileNameLength, file->size()));
    p.Form8->Label1.Caption = u"Path: "_s + p.Branch.HomeDir;
    ReadAliasList(p);
    if (p.Alias.AliasAttr == FileSystem::ReadOnly) {
        p.Branch.HomeDir = homeBefore;
        p.Branch.WorkDir = workBefore;
        p.Form8->Label1.Caption = u"Path: "_s + p.Branch.HomeDir;
        p.Alias.AliasAttr = 0;
    } else {
        FillBranchList(p);
    }
}

} // namespace lineforge
