#include "interchange/BranchExport.h"

#include "forms/Form4.h"
#include "interchange/BranchDatabase.h"
#include "platform/base/Text.h"
#include "platform/files/Drives.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/MakeDirectory.h"
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
bool TellIfOpen(Program& p, const QString& database)
{
    const QString& open = p.Branch.sDbaseName;
    if (!SameText(open, database) && !SameText(open, DatabaseFile(database)))
        return false;
    p.Prompts.MsgBox(u"Database Open."_s, u"Must close this database to Export Files."_s, Buttons::Information);
    return true;
}

void TellExists(Program& p, const QString& text)
{
    p.Prompts.MsgBox(u"Error Creating New Directory"_s, text, Buttons::Information);
}

bool Confirm(Program& p, const QString& directory)
{
    return p.Prompts.MsgBox(u"Export Directory and Files"_s,
                            u"Database and files will be placed in\n"_s + directory + u"\ndirectory. ",
                            Buttons::InformationOkCancel) == Answer::Ok;
}

// False when the gallery's directory is there already; told when the hourglass has gone. Error 75 or 76 when it can't
// be made.
bool CopyBranch(Program& p, const QString& source, const QString& directory, const QString& gallery)
{
    p.Screen.Pointer = MousePointer::Hourglass;
    const auto pointerBack = qScopeGuard([&p] { p.Screen.Pointer = MousePointer::Default; });
    CopyDirectory(p, source, directory);
    // KEPT(BranchExportTest.NameOfThePicture_IsEmptyAfterTheListing_AndInAGedcomFile): it has gone through the names of
    // the files, and ends behind the last.
    // Mended, a GEDCOM file after an export would name the picture that was shown.
    p.Record.sPicFile.clear();
    if (!MakeDirectory(p.Files, gallery))
        return false;
    CopyDirectory(p, source + GalleryName(source.right(2).left(1)), gallery);
    return true;
}

// Into a directory that is made here.
void PutBranch(Program& p, const QString& database, const QString& directory)
{
    if (!MakeDirectory(p.Files, directory))
        return TellExists(p, directory + u" directory already exists.\nYou must first delete this Directory.");
    if (!Confirm(p, directory))
        return;
    const QString gallery = directory + PathSeparator + GalleryName(directory.right(1));
    if (!CopyBranch(p, database.chopped(DatabaseFile(database).size()), directory, gallery))
        TellExists(p, gallery + u" Directory already exists.\nYou must first move or delete this Directory.");
}
} // namespace

void ChooseExport(Program& p)
{
    const std::optional<QString> database = AskDatabase(p, u"Select Export Database source File"_s);
    if (!database)
        return;
    p.Export.sExportSource = *database;
    if (!IsBranchDatabase(p, *database, u" Must select a database"_s) || TellIfOpen(p, *database))
        return;
    p.Form4->Dir1.GoTo(p.Branch.HomeDir);
    p.Files.ChDir(p.Branch.HomeDir);
    // Volumes come and go.
    p.Form4->Drive1.Drives = Drives();
    p.Form4->Drive1.Drive = DriveOf(p.Form4->Dir1.Path, p.Form4->Drive1.Drives);
    p.Form4->Show();
}

void LoadExportWindow(Program& p)
{
    p.Form4->Centre(p.Screen.Area());
    // Where a list stands from the beginning is no change: `sPath` keeps what it last held.
    p.Form4->Dir1.Path = QDir::cleanPath(p.Files.CurDir());
}

void ChooseExportDrive(Program& p)
{
    p.Form4->Dir1.GoTo(p.Form4->Drive1.Drive);
}

void TakeExportDirectory(Program& p)
{
    p.Scratch.sPath = p.Form4->Dir1.Path;
}

void CancelExport(Program& p)
{
    p.Form4.Unload();
    p.Loop.PaintWindows();
}

QString ExportDirectory(const QString& beneath, const QString& database)
{
    constexpr qsizetype tail = 22;     // of "/LfgDat_X/LfgDat_X.mdb"
    constexpr qsizetype directory = 9; // of "/LfgDat_X"
    const bool isRoot = beneath == PathSeparator;
    return beneath + database.right(tail).left(isRoot ? directory - 1 : directory);
}

void ExportBranch(Program& p)
{
    const QString& database = p.Export.sExportSource;
    const QString directory = ExportDirectory(p.Scratch.sPath, database);
    p.Form4->Hide();
    p.Loop.PaintWindows();
    // The window has left the others free.
    if (TellIfOpen(p, database))
        return;
    try {
        PutBranch(p, database, directory);
    } catch (const RuntimeError& refusal) {
        ReportError(p.Errors, p.Prompts, refusal);
    }
}

} // namespace lineforge
