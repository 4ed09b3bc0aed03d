#pragma once

#include "platform/files/FileSystem.h"

namespace lineforge
{

// Makes a directory. False where one of that name is there already; whatever else stands in its way is an error of the
// disk, 75 or 76.
[[nodiscard]] bool MakeDirectory(FileSystem& files, const QString& directory);

} // namespace lineforge
