#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// From now on the user is told what other programs do to the databases that are open.
void TellOfOtherPrograms(Program& p);

} // namespace lineforge
