#pragma once

#include "platform/controls/Controls.h"
#include "program/state/Program.h"

namespace lineforge
{

// The platform's own box for an error that nothing has met.
void TellError(Program& p, const RuntimeError& error);

// Runs one handler, and sees to it that what stands beside the map afterwards, and on the record form, is one person's.
// An error that nothing in it has met is told, and the program ends with exit code 1; what was committed to a database
// is safe by then, and files that are being written are closed with what they hold. Nothing leaves this routine.
void RunHandler(Program& p, const Event& handler);

} // namespace lineforge
