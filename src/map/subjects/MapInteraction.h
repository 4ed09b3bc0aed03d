#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// What the mouse does on the map while the graphics tools are closed. Positions in twips on the picture.

// Keeps the point; a press on a box is answered by a click.
void PressWithoutTools(Program& p, double x, double y);

// Shows the point, unless a subject is being moved.
void ReleaseWithoutTools(Program& p, double x, double y);

// Finds the box's record and shows it, in another branch if need be; a record of another branch that is shown is left
// first. It follows a press and a release, which have left the point. Finishes a transfer of a subject to another box.
// Errors of the record store when a branch's database is there but can't be opened.
void DoubleClickOnMap(Program& p);

} // namespace lineforge
