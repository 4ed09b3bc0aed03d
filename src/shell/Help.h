#pragma once

#include "program/Program.h"

namespace lineforge
{

void ShowHelpContents(Program& p);
void ShowAbout(Program& p);

} // namespace lineforge
