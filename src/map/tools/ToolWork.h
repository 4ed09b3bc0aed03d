#pragma once

#include "map/items/MapWork.h"

namespace lineforge
{

// What the drawing tools work with: the map, and the shape of the pointer.
struct ToolWork : MapWork {
    ToolWork(Program& p);

    lineforge::Screen& Screen;
};

} // namespace lineforge
