#pragma once

#include "platform/files/FileSystem.h"
#include "platform/machine/Platform.h"

namespace lineforge
{

// How a user names a branch that isn't in the program's own list: by the path of its database,
// ".../LfgDat_X/LfgDat_X.mdb".

// The path chosen; nothing for Cancel.
[[nodiscard]] std::optional<QString> AskDatabase(Prompts& prompts, const QString& title);

// Whether that can be the database of a branch; tells the user why it can't. `notDatabase` is the text for a file of
// another kind.
bool IsBranchDatabase(const FileSystem& files, Prompts& prompts, const QString& path, const QString& notDatabase);

// "LfgDat_X.mdb" of such a path.
QString DatabaseFile(const QString& path);

// Copies the files of a directory, what can't be copied left out; the windows stay painted meanwhile.
void CopyDirectory(const FileSystem& files, EventLoop& loop, const QString& from, const QString& to);

} // namespace lineforge
