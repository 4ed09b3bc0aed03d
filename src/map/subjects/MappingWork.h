#pragma once

#include "map/items/MapWork.h"
#include "platform/drawing/PictureFile.h"
#include "platform/machine/Platform.h"
#include "program/state/ToolState.h"

namespace lineforge
{

// What a double click on the map ties a box to a record with, and chooses the record's picture.
struct MappingWork : MapWork {
    MappingWork(Program& p);

    MappingState& Mapping;
    lineforge::Screen& Screen;
    PictureCache& Pictures;
    Window<forms::Form7>& Form7;
};

} // namespace lineforge
