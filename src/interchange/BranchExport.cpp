#include "interchange/BranchExport.h"

#include "forms/Form4.h"
#include "interchange/BranchDatabase.h"
#include "platform/base/Text.h"
#include "platform/files/DiskFlush.h"
#include "platform/files/Drives.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/MakeDirectory.h"
#include "program/state/Program.h"
#include "program/ui/BranchUi.h"

#include <QDir>
#include <QScopeGuard>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The open database is known by its bare name or by its path. A branch of the same letter in another home counts as
// open, too.
bool TellIfOpen(const BranchState& branch, Prompts& prompts, const QString& database)
{
    const QString& open = branch.sDbaseName;
    if (!SameText(open, database) && !SameText(open, DatabaseFile(database)))
        return false;
    prompts.MsgBox(u"Database Open."_s, u"Must close this database to Export Files."_s, Buttons::Information);
    return true;
}

void TellExists(Prompts& prompts, const QString& text)
{
    prompts.MsgBox(u"Error Creating New Directory"_s, text, Buttons::Information);
}

bool Confirm(Prompts& prompts, const QString& directory)
{
    return prompts.MsgBox(u"Export Directory and Files"_s,
                          u"Database and files will be placed in\n"_s + directory + u"\ndirectory. ",
                          Buttons::InformationOkCancel) == Answer::Ok;
}

// False when the gallery's directory is there already; told when the hourglass has gone. Error 75 or 76 when it can't
// be made.
bool CopyBranch(const BranchExport& work, const QString& chosen, const QString& directory, const QString& gallery)
{
    const DatabaseToCopy database = TakeDatabase(work.Databases.Others(), work.Files, chosen);
    const QString source = chosen.chopped(DatabaseFile(chosen).size());
    work.Screen.Pointer = MousePointer::Hourglass;
    const auto pointerBack = qScopeGuard([&work] { work.Screen.Pointer = MousePointer::Default; });
    CopyDirectory(work.Files, work.Loop, database, source, directory);
    // KEPT(BranchExportTest.NameOfThePicture_IsEmptyAfterTheListing_AndInAGedcomFile): it has gone through the names of
    // the files, and ends behind the last.
    // Mended, a GEDCOM file after an export would name the picture that was shown.
    work.Record.sPicFile.clear();
    if (!MakeDirectory(work.Files, gallery))
        return false;
    CopyDirectory(work.Files, work.Loop, source + GalleryName(source.right(2).left(1)), gallery);
    FlushDisk(work.Files.Resolve(directory));
    return true;
}

// Into a directory that is made here.
void PutBranch(const BranchExport& work, const QString& database, const QString& directory)
{
    if (!MakeDirectory(work.Files, directory))
        return TellExists(work.Prompts,
                          directory + u" directory already exists.\nYou must first delete this Directory.");
    if (!Confirm(work.Prompts, directory))
        return;
    const QString gallery = directory + PathSeparator + GalleryName(directory.right(1));
    if (!CopyBranch(work, database, directory, gallery))
        TellExists(work.Prompts,
                   gallery + u" Directory already exists.\nYou must first move or delete this Directory.");
}
} // namespace

BranchExport::BranchExport(Program& p)
    : State(p.Export), Branch(p.Branch), Record(p.Record), Scratch(p.Scratch), Files(p.Files), Databases(p.Databases),
      Prompts(p.Prompts), Screen(p.Screen), Loop(p.Loop), Errors(p.Errors), Form4(p.Form4)
{
}

void ChooseExport(const BranchExport& work)
{
    const std::optional<QString> database = AskDatabase(work.Prompts, u"Select Export Database source File"_s);
    if (!database)
        return;
    work.State.sExportSource = *database;
    if (!RequireBranchDatabase(work.Files, work.Prompts, *database, u" Must select a database"_s) ||
        TellIfOpen(work.Branch, work.Prompts, *database))
        return;
    work.Form4->Dir1.GoTo(work.Branch.HomeDir);
    work.Files.ChDir(work.Branch.HomeDir);
    // Volumes come and go.
    work.Form4->Drive1.Drives = Drives();
    work.Form4->Drive1.Drive = DriveOf(work.Form4->Dir1.Path, work.Form4->Drive1.Drives);
    work.Form4->Show();
}

void LoadExportWindow(forms::Form4& form, const Screen& screen, const FileSystem& files)
{
    form.Centre(screen.Area());
    // Where a list stands from the beginning is no change: `sPath` keeps what it last held.
    form.Dir1.Path = QDir::cleanPath(files.CurDir());
}

void ChooseExportDrive(forms::Form4& form)
{
    form.Dir1.GoTo(form.Drive1.Drive);
}

void TakeExportDirectory(ScratchState& scratch, const forms::Form4& form)
{
    scratch.sPath = form.Dir1.Path;
}

void CancelExport(Window<forms::Form4>& window, EventLoop& loop)
{
    window.Unload();
    loop.PaintWindows();
}

QString ExportDirectory(const QString& beneath, const QString& database)
{
    constexpr qsizetype tail = 22;     // of "/LfgDat_X/LfgDat_X.mdb"
    constexpr qsizetype directory = 9; // of "/LfgDat_X"
    const bool isRoot = beneath == PathSeparator;
    return beneath + database.right(tail).left(isRoot ? directory - 1 : directory);
}

void ExportBranch(const BranchExport& work)
{
    const QString& database = work.State.sExportSource;
    const QString directory = ExportDirectory(work.Scratch.sPath, database);
    work.Form4->Hide();
    work.Loop.PaintWindows();
    // The window has left the others free.
    if (TellIfOpen(work.Branch, work.Prompts, database))
        return;
    try {
        PutBranch(work, database, directory);
    } catch (const RuntimeError& refusal) {
        ReportError(work.Errors, work.Prompts, refusal);
    }
}

} // namespace lineforge
