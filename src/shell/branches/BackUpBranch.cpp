#include "shell/branches/BackUpBranch.h"

#include "forms/Form3.h"
#include "map/items/MapFile.h"
#include "platform/files/WholeFile.h"
#include "platform/store/DatabaseBytes.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/BranchUi.h"

#include <QDateTime>
#include <QFileInfo>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The chosen path without its ending. Error 5 for one that is shorter than an ending.
QString StemOf(const QString& path)
{
    constexpr qsizetype ending = 4; // ".mdb"
    if (path.size() < ending)
        throw RuntimeError(ErrorNumber::InvalidCall, path);
    return path.chopped(ending);
}

// After Open the name is a bare one, and the current directory may be another branch's by now.
QString OpenDatabasePath(const BranchState& branch)
{
    const QString& name = branch.sDbaseName;
    return name.contains(PathSeparator) ? name : QString(branch.WorkDir + PathSeparator + name);
}

// Another program may be at it. What can't be opened is copied all the same.
void CopyDatabase(const BranchAccess& access, const QString& copy)
{
    const QString database = access.Files.Resolve(DatabasePath(access.Branch.WorkDir));
    if (const std::optional<QByteArray> bytes = DatabaseBytes(access.Databases.Others(), database))
        WriteWholeFile(access.Files.Resolve(copy), *bytes, QFileInfo(database).lastModified());
    else
        access.Files.FileCopy(database, copy);
}

// The map goes along as it is read at the next opening: in an imported branch that is the file which came with it.
void WriteBackup(const BranchAccess& access, const QString& chosen)
{
    access.Form3.Unload(); // closes the database
    const QString stem = StemOf(chosen);
    CopyDatabase(access, stem + u".~md");
    access.Files.FileCopy(MapFileToRead(access.Branch.WorkDir), stem + u".~cf");
    PointAtDatabase(access, OpenDatabasePath(access.Branch));
}
} // namespace

void BackUpBranch(const BranchAccess& access, MapState& map, ErrorState& errors)
{
    // Also one whose database can't be opened: its files can be copied all the same.
    if (access.Branch.sDbaseName.isEmpty())
        return TellNoBranch(access.Prompts);
    access.Prompts.MsgBox(
        u"Backup Database"_s,
        u"Backup will copy your current Database File \nand Tree Config file to your chosen destination."_s,
        Buttons::Information);
    WriteMapFile(map, access.Branch, access.Files);
    const std::optional<QString> chosen =
        access.Prompts.SaveFile({u"Select Backup Destination Directory"_s, u"DataBase *.mdb|*.mdb|All Files|*.*|"_s});
    if (!chosen)
        return;
    errors.Ignoring([&] { WriteBackup(access, *chosen); });
}

} // namespace lineforge
