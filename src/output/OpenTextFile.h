#pragma once

#include "platform/files/FileSystem.h"
#include "program/state/OutputState.h"

namespace lineforge
{

// Begins the text file that records are put out to. What stands there already is copied to the file for the one before.
// Errors of the disk.
void OpenTextFile(OutputState& output, FileSystem& files, const QString& file, const QString& before);

// Puts the text file in its place, now that it is complete.
void CloseTextFile(OutputState& output);

} // namespace lineforge
