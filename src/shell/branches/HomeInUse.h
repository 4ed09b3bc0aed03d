#pragma once

#include "platform/machine/Processes.h"
#include "platform/machine/Prompts.h"

namespace lineforge
{

// Whether the user works in that home from now on. Not where another run of the program does, which has come to the
// front then; one that can't be reached is his to judge.
[[nodiscard]] bool MayWorkIn(Processes& processes, Prompts& prompts, const QString& home);

} // namespace lineforge
