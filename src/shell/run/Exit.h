#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The Exit command of any window: saves the boxes, whether or not a branch is open, and ends the program. Errors of the
// disk come through before anything is closed.
void ExitProgram(Program& p);

// The same from the gallery, which closes the branch in the way that the menu does.
void ExitFromGallery(Program& p);

// The same from the record form. A map that can't be saved is told, and stops nothing. Errors of the database, where a
// text can't be stored.
void ExitFromRecords(Program& p);

// The main window goes, by its frame or by the command: closes sounds and all windows and ends the program.
// KEPT(ExitTest.Frame_DoesNotSaveTheBoxes_AndEndsWithCodeZero): by the frame alone the boxes aren't saved.
// Mended, boxes that have changed since they were last written would be written by the frame as well.
void CloseMainWindow(Program& p);

} // namespace lineforge
