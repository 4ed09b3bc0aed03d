#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// Opens the drawing tools beside the map; told when there is no branch, or a record of another branch is shown.
void OpenTools(Program& p);

// Switches the tool for one kind of item on or off.
void ChooseLineTool(Program& p);
void ChooseBoxTool(Program& p);
void ChooseTextTool(Program& p);

// Move and Delete only qualify the tool in hand. With none in hand Move begins a zone.
void ChooseMove(Program& p);
void ChooseDelete(Program& p);

void ChooseColour(Program& p);
void ChooseFont(Program& p);

} // namespace lineforge
