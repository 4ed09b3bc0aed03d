#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/files/FileSystem.h"
#include "platform/machine/Platform.h"
#include "platform/store/Database.h"
#include "program/state/BranchState.h"
#include "program/state/OutputState.h"
#include "program/state/RecordState.h"
#include "program/state/ScratchState.h"
#include "program/state/Windows.h"

namespace lineforge
{

struct Program;

// What an export works with.
struct BranchExport {
    BranchExport(Program& p);

    ExportState& State;
    const BranchState& Branch;
    RecordState& Record;
    ScratchState& Scratch;
    FileSystem& Files;
    lineforge::Databases& Databases;
    lineforge::Prompts& Prompts;
    lineforge::Screen& Screen;
    EventLoop& Loop;
    ErrorState& Errors;
    Window<forms::Form4>& Form4;
};

// A whole branch that isn't open goes, with its gallery, into a directory of its own name elsewhere.

// First stage: asks for the branch's database, and shows the window for the destination.
void ChooseExport(const BranchExport& work);

// That window: its lists when it is made, and what the user does with them.
void LoadExportWindow(forms::Form4& form, const Screen& screen, const FileSystem& files);
void ChooseExportDrive(forms::Form4& form);
void TakeExportDirectory(ScratchState& scratch, const forms::Form4& form);
void CancelExport(Window<forms::Form4>& window, EventLoop& loop);

// Second stage: makes the directory that `sPath` leads to, asks, and copies. A directory of that name, or its gallery,
// that is there already ends it with a box, one that can't be made by `ReportError`; a file that can't be copied is
// left out without a word. What was copied is on the disk at the end. A user who doesn't wait for another program that
// works on the database has an empty directory.
void ExportBranch(const BranchExport& work);

// The directory that an export of that database goes to: the path, and what the last 22 characters of the database's
// begin with, which is its directory where that has the name of a branch.
// KEPT(ExportDirectoryTest.Name_IsTheSourcesOwn_WithoutItsLetterAtTheRoot): at the root the branch's letter is lost
// from the name.
// Mended, such an export would have it, and so would its gallery.
QString ExportDirectory(const QString& beneath, const QString& database);

} // namespace lineforge
