#include "interchange/BranchImport.h"

#include "forms/Form1.h"
#include "forms/Form4.h"
#include "interchange/BranchDatabase.h"
#include "map/subjects/EnterBranch.h"
#include "map/tools/LeaveTools.h"
#include "platform/files/DiskFlush.h"
#include "program/branch/AliasList.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/MakeDirectory.h"
#include "program/state/Program.h"
#include "program/ui/BranchUi.h"

#include <QScopeGuard>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// "LfgDat_X", or "Import_X" where the registry has that; what stands on the disk isn't asked.
QString ChooseDirectory(const AliasState& alias, Prompts& prompts, const QString& letter)
{
    const QString ordinary = u"LfgDat_"_s + letter;
    if (!IsDirectoryListed(alias, ordinary))
        return ordinary;
    const QString imported = u"Import_"_s + letter;
    prompts.MsgBox(u"Import database name in use"_s,
                   u"This database is already present in the Home Directory and will be placed in: "_s + imported +
                       u" Directory",
                   Buttons::Information);
    return imported;
}

bool Confirm(Program& p, const QString& name, const QString& directory)
{
    return p.Prompts.MsgBox(u"New Directory and Files"_s,
                            u"Imported '"_s + name + u"' Database and files will be placed in\ndirectory " +
                                p.Branch.HomeDir + directory,
                            Buttons::InformationOkCancel) == Answer::Ok;
}

// False, and a box, when there is such a directory, there being no third one for a letter, or when it can't be made.
bool MakeTarget(Program& p, const QString& directory)
{
    try {
        if (MakeDirectory(p.Files, p.Branch.HomeDir + directory))
            return true;
        p.Prompts.MsgBox(u"Error Setting New Directory"_s,
                         directory + u" directory already exists. Must first delete this Database.",
                         Buttons::Information);
    } catch (const RuntimeError& refusal) {
        ReportError(p.Errors, p.Prompts, refusal);
    }
    return false;
}

// The list names no branch whose files a power cut could still take back.
void CopyBranch(Program& p, const DatabaseToCopy& database, const QString& source, const QString& directory,
                const QString& letter)
{
    const QString target = p.Branch.HomeDir + directory;
    p.Screen.Pointer = MousePointer::Hourglass;
    const QString gallery = PathSeparator + GalleryName(letter);
    p.Errors.Ignoring([&] { p.Files.MkDir(target + gallery); });
    // Which is the root where nothing stands before.
    CopyDirectory(p.Files, p.Loop, database, source + PathSeparator, target);
    CopyDirectory(p.Files, p.Loop, source + gallery, target + gallery);
    p.Errors.Ignoring([&] { FlushDisk(p.Files.Resolve(target)); });
}

// A database that can't be opened ends it as it ends Open: with a box, and with the branch named all the same. Tools
// that are open have no map to draw on then.
void OpenImported(Program& p, const QString& name, const QString& directory)
{
    const bool isOpen = EnterBranch(p, name, directory);
    p.Screen.Pointer = MousePointer::Default;
    if (!isOpen)
        return LeaveToolsIfOpen(p);
    if (EmptySubjectIfNoRecords(p.Form1, p.Form3, p.Prompts))
        return;
    EnableBranchUI(*p.Form1);
    ShowFirstSubject(p, p);
}
} // namespace

void ImportBranch(Program& p)
{
    p.Form4.Load(); // whose dialog it is
    const std::optional<QString> chosen = AskDatabase(p.Prompts, u"Select Import Database File"_s);
    if (!chosen || !RequireBranchDatabase(p.Files, p.Prompts, *chosen, u" Must select a database *.mdb file"_s))
        return;
    const QString file = DatabaseFile(*chosen);
    const QString letter = file.mid(7, 1);
    const QString source = chosen->chopped(file.size() + 1);
    p.Files.ChDir(p.Branch.HomeDir);

    const QString directory = ChooseDirectory(p.Alias, p.Prompts, letter);
    const QString name = AskBranchName(p.Alias, p.Prompts, u"Imported Tree Branch alternate name"_s,
                                       u"Enter alternate user friendly name for this imported Tree Branch Map."_s);
    if (name.isEmpty() || !Confirm(p, name, directory))
        return;

    const auto pointerBack = qScopeGuard([&p] { p.Screen.Pointer = MousePointer::Default; });
    p.Scratch.sNewDir = directory;
    // Before anything is made: what is typed may have to stay, and its branch with it, and the user may not wait for
    // another program that works on the database.
    StoreTypedOrStay(p.Form3, p.Errors, p.Prompts);
    const DatabaseToCopy database = TakeDatabase(p.Databases.Others(), p.Files, *chosen);
    if (!MakeTarget(p, directory))
        return;
    CopyBranch(p, database, source, directory, letter);
    AddAlias(p, name, directory, Refusals::CostTheirStep);
    OpenImported(p, name, directory);
}

} // namespace lineforge
