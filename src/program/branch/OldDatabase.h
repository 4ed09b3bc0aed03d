#pragma once

#include "program/branch/BranchAccess.h"

#include <QString>

namespace lineforge
{

// For whom a database is wanted.
enum class OldDatabaseUse {
    Command, // the user has asked for it
    Caption, // a box shows one of its people: what has once been refused in this run is so again, without a question
};

// Makes a database of ours of that file when an older installation wrote it and it stands beneath the home directory.
// The file is kept beside it, unchanged. Any other file, one that isn't there, and one that is read-only are left to
// whoever opens them.
// RuntimeError 3343 for a file of a newer installation, or one that can't be taken or that the user doesn't want taken
// with its losses, and whatever the disk refuses; nothing has changed then.
void ConvertIfOld(const DatabaseOpening& opening, const QString& path, OldDatabaseUse use);

// Shows the box for a database of that path that could not be opened, with the reason where the user can do something
// about it.
void TellDatabaseRefused(const DatabaseOpening& opening, const QString& path, const RuntimeError& refusal);

} // namespace lineforge
