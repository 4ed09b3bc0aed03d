#pragma once

#include "map/items/MapWork.h"

namespace lineforge
{

// Frames over the boxes of all male records of the surname typed beside the map, or none: the View and Clear buttons.
void ViewLineage(const BoxWork& work, Prompts& prompts, EventLoop& loop);
void ClearLineage(const BoxWork& work, Prompts& prompts, EventLoop& loop);

// By `ToolMode`. Two views in a row are error 360, two clearings error 340, for the frames are there already, or gone.
// A box in the very top row, at a left other than 0, is met again and again, and the view never ends; the event loop is
// served meanwhile, so that the program can be closed.
void LineageView(const BoxWork& work, Prompts& prompts, EventLoop& loop);

} // namespace lineforge
