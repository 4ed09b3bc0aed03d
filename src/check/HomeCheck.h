#pragma once

#include "check/Findings.h"

#include <chrono>

namespace lineforge::check
{

// Looks through the home in that directory: the list of branches, and of every branch the database, the map, the
// pictures and the gallery. Changes nothing, and refuses nothing: what can't be looked at is a finding. Whoever calls
// it has databases of the home open only at rest, without a lock on them. A database that another program has locked
// is waited for that long.
Report CheckHome(const QString& home, std::chrono::milliseconds patience = std::chrono::seconds(2));

} // namespace lineforge::check
