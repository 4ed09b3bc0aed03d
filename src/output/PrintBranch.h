#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The whole map on one page, on its side, in a frame; what is larger than the page is cut off. Errors are shown.
void PrintMap(Program& p);

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

// One record on a page of its own. Errors are shown.
void PrintCurrentRecord(Program& p);

// All records, two to a page, after a question. Ends on the first record. Errors are shown.
void PrintDatabase(Program& p);

// The printer that everything goes to from now on.
void SetUpPrinter(Program& p);

} // namespace lineforge
