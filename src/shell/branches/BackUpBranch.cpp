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
QString OpenDatabasePath(const Program& p)
{
    const QString& name = p.Branch.sDbaseName;
    return name.contains(PathSeparator) ? name : QString(p.Branch.WorkDir + PathSeparator + name);
}

// Another program may be at it. What can't be opened is copied all the same.
void CopyDatabase(Program& p, const QString& copy)
{
    const QString database = p.Files.Resolve(DatabasePath(p.Branch.WorkDir));
    if (const std::optional<QByteArray> bytes = DatabaseBytes(p.Databases.Others(), database))
        WriteWholeFile(p.Files.Resolve(copy), *bytes, QFileInfo(database).lastModified());
    else
        p.Files.FileCopy(database, copy);
}

// The map goes along as it is read at the next opening: in an imported branch that is the file which came with it.
void WriteBackup(Program& p, const QString& chosen)
{
    p.Form3.Unload(); // closes the database
    const QString stem = StemOf(chosen);
    CopyDatabase(p, stem + u".~md");
    p.Files.FileCopy(MapFileToRead(p.Branch.WorkDir), stem + u".~cf");
    PointAtDatabase(p, OpenDatabasePath(p));
}
} // namespace

void BackUpBranch(Program& p)
{
    // Also one whose database can't be opened: its files can be copied all the same.
    if (p.Branch.sDbaseName.isEmpty())
        return TellNoBranch(p.Prompts);
    p.Prompts.MsgBox(
        u"Backup Database"_s,
        u"Backup will copy your current Database File \nand Tree Config file to your chosen destination."_s,
        Buttons::Information);
    WriteMapFile(p);
    const std::optional<QString> chosen =
        p.Prompts.SaveFile({u"Select Backup Destination Directory"_s, u"DataBase *.mdb|*.mdb|All Files|*.*|"_s});
    if (!chosen)
        return;
    p.Errors.Ignoring([&] { WriteBackup(p, *chosen); });
}

} // namespace lineforge
