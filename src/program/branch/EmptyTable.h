#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// Whether the open branch has no records; tells the user so.
bool TellIfEmptyTable(Program& p);

} // namespace lineforge
