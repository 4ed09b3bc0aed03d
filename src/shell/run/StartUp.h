#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// Starts the program: loads the splash, which does the rest. In the home of that path, with a trailing separator, or,
// when none is named, in the executable's own directory.
void StartProgram(Program& p, const QString& home = {});

// The splash's load: home directory, setting, splash and sound, then the main window.
void LoadSplash(Program& p);

// The splash's check box: the setting is written at once.
void ChooseSplash(Program& p);

// The main window's load: its size, the list of branches, and what is off until a branch is open.
void LoadMainWindow(Program& p);

} // namespace lineforge
