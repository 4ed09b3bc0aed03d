#pragma once

#include "platform/machine/Platform.h"
#include "program/state/BranchState.h"
#include "program/state/ToolState.h"

namespace lineforge
{

void ShowHelpContents(Prompts& prompts, const BranchState& branch);

// From a window that may be open while the map waits for a box to be chosen; that ends.
void ShowRecordHelp(Prompts& prompts, const BranchState& branch, ToolState& tools, Screen& screen);
void ShowAbout(Prompts& prompts);

} // namespace lineforge
