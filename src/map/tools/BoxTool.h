#pragma once

#include "map/tools/Gesture.h"

namespace lineforge
{

// A new box, its middle where the press was; in the colour of the dialog.
Pressed BeginBox(Program& p, const Pointing& pointing);
Released EndBox(Program& p);

// The box under the press, to be moved or deleted; its caption is wiped. The box of a record that exists can't be
// deleted, which is told.
Pressed TakeBox(Program& p, const Pointing& pointing);
Pressed TakeBoxToDelete(Program& p, const Pointing& pointing);

void DragBox(Program& p, const Pointing& pointing);
Released DropBox(Program& p);

Released DeleteBox(Program& p);

} // namespace lineforge
