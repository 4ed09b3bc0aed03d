#pragma once

#include "check/HomeCheck.h"

#include <QStringList>

namespace lineforge::monkey
{

// What a check of the home finds now and hadn't found before, without what a user may bring about by the commands of
// the program.
QStringList NewFindings(const check::Report& before, const check::Report& now);

// Without branches that aren't in the list: whatever makes a branch tells the list last, and may be killed before.
// Without the journals of changes that were cut off.
check::Report WithoutUnfinished(check::Report report);

} // namespace lineforge::monkey
