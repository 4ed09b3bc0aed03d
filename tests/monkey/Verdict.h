#pragma once

#include "check/HomeCheck.h"

#include <QStringList>

#include <functional>

namespace lineforge::monkey
{

// What a check of the home finds now and hadn't found before, without what a user may bring about by the commands of
// the program.
QStringList NewFindings(const check::Report& before, const check::Report& now);

// Without files of no use that `isTheUsers` knows as such by their paths below the home: a picture or sound that can't
// be shown or played is kept as it is, to the last byte.
check::Report WithoutChosen(check::Report report, const std::function<bool(const QString&)>& isTheUsers);

// Without the directories of exports that `isExport` knows by their names, where they were put beside the branches of a
// home: an export enters nothing in its list, and one that is given up leaves its directory, which `isEmpty` then.
using OfDirectory = std::function<bool(const QString& name)>;
check::Report WithoutExports(check::Report report, const OfDirectory& isExport, const OfDirectory& isEmpty);

// Without what a kill may leave. Branches that aren't in the list: whatever makes a branch tells the list last, and may
// be killed before; but one that `mustBeListed` can only have been lost from it. The journals of changes that were cut
// off, and the one file that a swap of tiles had out of the way.
check::Report WithoutUnfinished(check::Report report, const OfDirectory& mustBeListed);

} // namespace lineforge::monkey
