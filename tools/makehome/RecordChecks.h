#pragma once

#include "Branch.h"

namespace lineforge::makehome
{

// A wrong example would be copied by everybody who learns from it, so one slip stops the build.
void CheckRecords(const QList<Branch>& branches);

} // namespace lineforge::makehome
