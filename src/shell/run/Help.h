#pragma once

#include "program/state/Program.h"

namespace lineforge
{

void ShowHelpContents(Program& p);

// From a window that may be open while the map waits for a box to be chosen; that ends.
void ShowRecordHelp(Program& p);
void ShowAbout(Program& p);

} // namespace lineforge
