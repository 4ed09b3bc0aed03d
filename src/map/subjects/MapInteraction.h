#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// What the mouse does on the map while the graphics tools are closed. A press has left its point in `Mouse`.

// A press on a box is answered by a click.
void AnswerPress(Program& p);

// Finds the box's record and shows it, in another branch if need be; a record of another branch that is shown is left
// first. It follows a press and a release. Finishes a transfer of a subject to another box.
// Errors of the record store when a branch's database is there but can't be opened.
void DoubleClickOnMap(Program& p);

} // namespace lineforge
