#include "interchange/BranchDatabase.h"

#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/files/DirectoryFiles.h"
#include "platform/store/DatabaseBytes.h"
#include "program/ui/Meanwhile.h"

#include <QFileInfo>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr qsizetype databaseNameLength = 12; // of "LfgDat_X.mdb"
}

QString DatabaseFile(const QString& path)
{
    return path.right(databaseNameLength);
}

std::optional<QString> AskDatabase(Prompts& prompts, const QString& title)
{
    return prompts.OpenFile({title, u"DataBase *.mdb|*.mdb|All Files|*.*|"_s});
}

bool RequireBranchDatabase(const FileSystem& files, Prompts& prompts, const QString& path, const QString& notDatabase)
{
    const auto refuse = [&prompts](const QString& title, const QString& text) {
        prompts.MsgBox(title, text, Buttons::Information);
        return false;
    };
    if (files.Dir(path).isEmpty())
        return refuse(u"File not present."_s, u"File not found."_s);
    if (!SameText(path.right(3), u"mdb"))
        return refuse(u"Database not selected."_s, notDatabase);
    if (!SameText(DatabaseFile(path).left(7), u"LfgDat_"))
        return refuse(u"Database not selected."_s, u" Must select an 'LfgDat_[]' File"_s);
    return true;
}

DatabaseToCopy TakeDatabase(OtherPrograms& others, const FileSystem& files, const QString& path)
{
    const QString file = files.Resolve(path);
    try {
        return {file, DatabaseBytes(others, file)};
    } catch (const RuntimeError& refusal) {
        if (refusal.IsTold)
            throw;
        // It goes with what is kept beside it.
        return {file, {}};
    }
}

void CopyDirectory(const FileSystem& files, EventLoop& loop, const QString& from, const QString& to)
{
    CopyDirectory(files, loop, {}, from, to);
}

void CopyDirectory(const FileSystem& files, EventLoop& loop, const DatabaseToCopy& database, const QString& from,
                   const QString& to)
{
    QStringList without;
    if (database.Bytes) {
        const QFileInfo file(database.File);
        without = ChangesBeside(file.fileName()) + QStringList(file.fileName());
        CopyReadFile(database.File, *database.Bytes, files.Resolve(to) + PathSeparator + file.fileName());
    }
    Meanwhile meanwhile(loop);
    const auto step = [&meanwhile] { meanwhile.KeepPainted(); };
    CopyFiles(files.Resolve(from), files.Resolve(to), step, without);
}

} // namespace lineforge
