#pragma once

#include "map/subjects/MappingWork.h"
#include "map/subjects/SubjectPanel.h"

namespace lineforge
{

// What the mouse does on the map while the graphics tools are closed. A press has left its point in `Mouse`.

// A press on a box is answered by a click.
void AnswerPress(const MapState& map, MapMouseState& mouse, Window<forms::Form1>& mainWindow, EventLoop& loop);

// Finds the box's record and shows it, in another branch if need be; a record of another branch that is shown is left
// first. It follows a press and a release. Finishes a transfer of a subject to another box.
// Errors of the record store when a branch's database is there but can't be opened.
void DoubleClickOnMap(const MappingWork& work, const SubjectPanel& panel);

} // namespace lineforge
