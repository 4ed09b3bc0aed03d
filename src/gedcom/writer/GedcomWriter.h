#pragma once

#include "forms/Form12.h"
#include "gedcom/writer/LineageSearch.h"

namespace lineforge
{

// The menu's entry: the window with an empty panel. No branch need be open.
void ShowGedcomForm(Window<forms::Form12>& window);

// The window has been made: its place on the screen.
void LoadGedcomForm(forms::Form12& form, const Screen& screen, Window<forms::Form3>& recordForm);

void ResetGedcomForm(forms::Form12& form);

// Create File: tells what is missing, or writes the file. A press while a file is being written does nothing.
void CreateGedcomFile(const GedcomWriting& writing);

// `Gedcom.tmp` in the open branch's directory, as it goes, and the same lines in the panel. Ends early, without a file
// and with a box, when the branch is left in one of its yields. Errors of the disk and of `CollectLineage`; the file is
// still open then.
void WriteGedcomFile(const GedcomWriting& writing);

} // namespace lineforge
