#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The ways into the gallery and out of it.

// The main window's Gallery button.
void GoToGalleryFromMap(Program& p);

// The record form's: what its Tree button does, and on to the gallery. Nothing while a subject is being mapped.
void GoToGalleryFromRecords(Program& p);

// The gallery's own two buttons. An item that is open stays open; a deletion that waits for its tile is given up.
void LeaveGalleryForTree(Program& p);
void LeaveGalleryForRecords(Program& p);

} // namespace lineforge
