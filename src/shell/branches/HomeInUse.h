#pragma once

#include "platform/machine/Processes.h"
#include "platform/machine/Prompts.h"
#include "program/state/Program.h"

namespace lineforge
{

// Whether the user works in that home from now on. Not where another run of the program does, which is called to the
// front then; one that can't be reached is his to judge.
[[nodiscard]] bool MayWorkIn(Processes& processes, Prompts& prompts, const QString& home);

// Leaves those homes to others in which neither the list is nor the open branch nor the one that it is compared with.
void LeaveOtherHomes(Program& p);

} // namespace lineforge
