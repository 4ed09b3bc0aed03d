#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/machine/Printer.h"
#include "platform/machine/Prompts.h"
#include "program/state/Windows.h"

namespace lineforge
{

// A picture of a window. What the printer refuses is shown for the main window and the comparison as an error, for the
// record form in words, for the gallery not at all.
void PrintMainWindow(const forms::Form1& form, Printer& printer, ErrorState& errors, Prompts& prompts);
void PrintComparisonWindow(const forms::Form6& form, Printer& printer, ErrorState& errors, Prompts& prompts);
void PrintRecordWindow(const forms::Form3& form, Printer& printer, ErrorState& errors, Prompts& prompts);
void PrintGalleryWindow(const forms::Form5& form, Printer& printer, ErrorState& errors);

// The command of the window that shows a picture by itself. What the printer refuses is shown in words.
// KEPT(PrintWindowTest.PictureWindow_PrintsTheMainWindow): it prints the main window.
// Mended, it would print its own, with the picture.
void PrintFromPictureWindow(const forms::Form1& form, Printer& printer, ErrorState& errors, Prompts& prompts);

} // namespace lineforge
