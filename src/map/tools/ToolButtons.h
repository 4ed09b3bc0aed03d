#pragma once

#include "map/tools/ToolWork.h"

namespace lineforge
{

// Opens the drawing tools beside the map; told when there is no branch, or a record of another branch is shown.
void OpenTools(const ToolWork& work);

// Switches the tool for one kind of item on or off.
void ChooseLineTool(const ToolWork& work);
void ChooseBoxTool(const ToolWork& work);
void ChooseTextTool(const ToolWork& work);

// Move and Delete only qualify the tool in hand. With none in hand Move begins a zone.
void ChooseMove(const ToolWork& work);
void ChooseDelete(const ToolWork& work);

void ChooseColour(const ToolWork& work);
void ChooseFont(const ToolWork& work);

} // namespace lineforge
