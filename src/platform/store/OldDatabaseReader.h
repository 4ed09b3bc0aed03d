#pragma once

#include "platform/store/JetRows.h"

#include <QString>

#include <chrono>
#include <functional>
#include <optional>

namespace lineforge
{

// The program that reads old databases, beside the main one; it is there when the system had the library for it.
QString OldDatabaseReader(const QString& executableDirectory);

// Lets that program read a file, and calls `meanwhile` again and again until it is done. Nothing when it refuses, dies,
// tells something that is no whole stream, or isn't done in time; it never outlives the call.
[[nodiscard]] std::optional<JetRows> ReadOldDatabase(const QString& reader, const QString& file,
                                                     std::chrono::milliseconds patience,
                                                     const std::function<void()>& meanwhile);

} // namespace lineforge
