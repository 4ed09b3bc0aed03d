#pragma once

#include "platform/Controls.h"
#include "program/Program.h"

namespace lineforge
{

// Runs one handler. An error that nothing in it has met is shown in the platform's own box, and the program ends with
// exit code 1; what was committed to a database is safe by then, and files that are being written are closed with
// what they hold. Nothing leaves this routine.
void RunHandler(Program& p, const Event& handler);

} // namespace lineforge
