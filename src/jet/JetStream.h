#pragma once

#include "jet/JetFile.h"

#include <ostream>
#include <string>

namespace lineforge::jet
{

// Reads the records of that file and writes them as platform/store/JetStreamFormat.h tells. What has been written is of
// use only after `Whole`.
jetstream::Outcome WriteRecords(const std::string& path, std::ostream& output);

} // namespace lineforge::jet
