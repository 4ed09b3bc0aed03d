#pragma once

#include "compare/Sides.h"

#include <functional>

namespace lineforge
{

// Does what changes the record of a side. Where that is refused nothing of it stays behind for the next saving, and the
// side shows what it showed before. Where another program is the reason, and the user knows, it shows the record as it
// is now, as far as it can be read.
void ChangeOrShowAgain(Program& p, const Side& side, const std::function<void()>& change);

} // namespace lineforge
