#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// How a user names a branch that isn't in the program's own list: by the path of its database,
// ".../LfgDat_X/LfgDat_X.mdb".

// The path chosen; nothing for Cancel.
std::optional<QString> AskDatabase(Program& p, const QString& title);

// Whether that can be the database of a branch; tells the user why it can't. `notDatabase` is the text for a file of
// another kind.
bool IsBranchDatabase(Program& p, const QString& path, const QString& notDatabase);

// "LfgDat_X.mdb" of such a path.
QString DatabaseFile(const QString& path);

// Copies the files of a directory, what can't be copied left out; the windows stay painted meanwhile.
void CopyDirectory(Program& p, const QString& from, const QString& to);

} // namespace lineforge
