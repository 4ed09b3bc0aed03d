#pragma once

#include "map/tools/Gesture.h"

namespace lineforge
{

// A new box, its middle where the press was; in the colour of the dialog.
Pressed BeginBox(const ToolWork& work, const Pointing& pointing);
Released EndBox(const ToolWork& work);

// The box under the press, to be moved or deleted; its caption is wiped. The box of a record that exists can't be
// deleted, which is told.
Pressed TakeBox(const ToolWork& work, const Pointing& pointing);
Pressed TakeBoxToDelete(const ToolWork& work, const Pointing& pointing);

void DragBox(const ToolWork& work, const Pointing& pointing);
Released DropBox(const ToolWork& work);

Released DeleteBox(const ToolWork& work);

} // namespace lineforge
