#pragma once

#include "platform/files/FileIdentity.h"
#include "platform/files/FileSystem.h"
#include "platform/store/JetRows.h"

#include <QString>

#include <functional>

namespace lineforge
{

// The name, beside an old database, under which it is kept when its records have taken its place: another one than
// that of any other file.
QString NameOfKept(const QString& oldDatabase);

// Puts a database of ours with these rows in the place of an old one, which stays beside it, byte for byte, under
// `NameOfKept`. An end of the process or of the machine at any moment leaves the old database under its name, or the
// new one, whole. `meanwhile` is called at every step and every row.
// RuntimeError as `Statement` and `FileSystem`, and 3260 when another process is just doing it or the file is no longer
// that of which the rows were read; nothing has changed then, unless the disk fails behind the last step.
void ReplaceOldDatabase(const FileSystem& files, const FileIdentity& oldDatabase, const JetRows& rows,
                        const std::function<void()>& meanwhile);

} // namespace lineforge
