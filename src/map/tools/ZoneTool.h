#pragma once

#include "map/tools/Gesture.h"

namespace lineforge
{

// A rubber rectangle, `Shape3`, drawn over the map, and then dragged with all that lay in it when the drag began: texts
// and boxes by their corner, lines by their start. What it meets on its way is left alone.
Pressed BeginZone(const ToolWork& work, const Pointing& pointing);
void StretchZone(const ToolWork& work, const Pointing& pointing);
Released FixZone(const ToolWork& work);

// The drag may start anywhere on the picture.
Pressed TakeZone(const ToolWork& work, const Pointing& pointing);
void DragZone(const ToolWork& work, const Pointing& pointing);
Released DropZone(const ToolWork& work);

} // namespace lineforge
