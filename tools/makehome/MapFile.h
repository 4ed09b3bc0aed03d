#pragma once

#include "Branch.h"

namespace lineforge::makehome
{

// Writes the map in the form the program keeps: three lists, each on one line, every value followed by a comma.
void WriteMapFile(const QString& path, const Branch& branch, const QList<Branch>& branches);

} // namespace lineforge::makehome
