#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// A whole branch that isn't open goes, with its gallery, into a directory of its own name elsewhere.

// First stage: asks for the branch's database, and shows the window for the destination.
void ChooseExport(Program& p);

// That window: its lists when it is made, and what the user does with them.
void LoadExportWindow(Program& p);
void ChooseExportDrive(Program& p);
void TakeExportDirectory(Program& p);
void CancelExport(Program& p);

// Second stage: makes the directory that `sPath` leads to, asks, and copies. A directory of that name, or its gallery,
// that is there already ends it with a box, one that can't be made by `ReportError`; a file that can't be copied is
// left out without a word.
void ExportBranch(Program& p);

// The directory that an export of that database goes to: the path, and what the last 22 characters of the database's
// begin with, which is its directory where that has the name of a branch.
// KEPT(ExportDirectoryTest.Name_IsTheSourcesOwn_WithoutItsLetterAtTheRoot): at the root the branch's letter is lost
// from the name.
// Mended, such an export would have it, and so would its gallery.
QString ExportDirectory(const QString& beneath, const QString& database);

} // namespace lineforge
