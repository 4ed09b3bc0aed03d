#pragma once

#include "map/tools/ToolWork.h"
#include "platform/drawing/PictureFile.h"

namespace lineforge
{

// Closes the drawing tools and asks whether to save. Yes writes the map file; No brings the map back as it stood at the
// last save. Either way the map is read from its lists and painted afresh, and the record that was current when the
// tools were opened is so again. Errors of the disk; the old file then stays.
void LeaveTools(const ToolWork& work);

// The same, when they are shown at all.
void LeaveToolsIfOpen(const ToolWork& work);

// On the way to the records and the gallery: tools that View or Clear have taken the mouse from stay as they are, and
// are asked for when the map is left. What is drawn waits; only a command that saves the boxes saves those drawn as
// well.
void LeaveToolsAtDoor(const ToolWork& work);

// The button beside the tools.
void ChooseExit(const ToolWork& work);

// The menus Edit and Tree Graphics close the tools when one is in hand, and end a mapping.
void OpenEditingMenu(const ToolWork& work, PictureCache& pictures);

} // namespace lineforge
