#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// A picture of a window. What the printer refuses is shown for the main window and the comparison as an error, for the
// record form in words, for the gallery not at all.
void PrintMainWindow(Program& p);
void PrintComparisonWindow(Program& p);
void PrintRecordWindow(Program& p);
void PrintGalleryWindow(Program& p);

// The command of the window that shows a picture by itself. What the printer refuses is shown in words.
// KEPT(PrintWindowTest.PictureWindow_PrintsTheMainWindow): it prints the main window.
// Mended, it would print its own, with the picture.
void PrintFromPictureWindow(Program& p);

} // namespace lineforge
