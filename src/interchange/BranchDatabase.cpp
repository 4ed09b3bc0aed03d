#include "interchange/BranchDatabase.h"

#include "platform/base/Text.h"
#include "platform/files/DirectoryFiles.h"
#include "program/ui/Meanwhile.h"

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

bool IsBranchDatabase(const FileSystem& files, Prompts& prompts, const QString& path, const QString& notDatabase)
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

void CopyDirectory(const FileSystem& files, EventLoop& loop, const QString& from, const QString& to)
{
    Meanwhile meanwhile(loop);
    CopyFiles(files.Resolve(from), files.Resolve(to), [&meanwhile] { meanwhile.KeepPainted(); });
}

} // namespace lineforge
