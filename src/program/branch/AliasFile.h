#pragma once

#include "platform/files/FileSystem.h"

#include <QString>

#include <functional>

namespace lineforge
{

// The sections of the registry of tree branches.
namespace AliasSection
{
inline constexpr QStringView Branches = u"[Alias]"; // "name=directory" again and again
inline constexpr QStringView Settings = u"[CFG]";
} // namespace AliasSection

// Hands over each value of a section that a comma ends, in the order of the file; false when there is no such section.
// Error 53 or 70 when the file can't be read, 62 when it ends inside the section. What `take` refuses tells the file.
bool ReadAliasSection(const FileSystem& files, const QString& path, QStringView section,
                      const std::function<void(const QString& value)>& take);

} // namespace lineforge
