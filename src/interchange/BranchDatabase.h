#pragma once

#include "platform/files/FileSystem.h"
#include "platform/machine/Platform.h"

#include <QByteArray>

#include <optional>

namespace lineforge
{

class OtherPrograms;

// How a user names a branch that isn't in the program's own list: by the path of its database,
// ".../LfgDat_X/LfgDat_X.mdb".

// The path chosen; nothing for Cancel.
[[nodiscard]] std::optional<QString> AskDatabase(Prompts& prompts, const QString& title);

// Whether that can be the database of a branch; tells the user why it can't. `notDatabase` is the text for a file of
// another kind.
[[nodiscard]] bool RequireBranchDatabase(const FileSystem& files, Prompts& prompts, const QString& path,
                                         const QString& notDatabase);

// "LfgDat_X.mdb" of such a path.
QString DatabaseFile(const QString& path);

// A branch's database as it is when no other program is just changing it; without its bytes where it can only be copied
// as it stands.
struct DatabaseToCopy {
    QString File;
    std::optional<QByteArray> Bytes;
};
// The database at that path; waits for other programs as long as the user wants to, and is refused with 3260, told,
// when he doesn't.
[[nodiscard]] DatabaseToCopy TakeDatabase(OtherPrograms& others, const FileSystem& files, const QString& path);

// Copies a directory's files, what can't be copied left out; the windows stay painted meanwhile.
void CopyDirectory(const FileSystem& files, EventLoop& loop, const QString& from, const QString& to);
// The same of the directory of a branch whose database was taken before.
void CopyDirectory(const FileSystem& files, EventLoop& loop, const DatabaseToCopy& database, const QString& from,
                   const QString& to);

} // namespace lineforge
