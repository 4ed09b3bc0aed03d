#pragma once

#include "map/tools/Gesture.h"

namespace lineforge
{

// A rubber rectangle, `Shape3`, drawn over the map, and then dragged with all that lay in it when the drag began: texts
// and boxes by their corner, lines by their start. What it meets on its way is left alone.
Pressed BeginZone(Program& p, const Pointing& pointing);
void StretchZone(Program& p, const Pointing& pointing);
Released FixZone(Program& p);

// The drag may start anywhere on the picture.
Pressed TakeZone(Program& p, const Pointing& pointing);
void DragZone(Program& p, const Pointing& pointing);
Released DropZone(Program& p);

} // namespace lineforge
