#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/machine/Printer.h"
#include "program/branch/BranchAccess.h"
#include "program/state/OutputState.h"
#include "program/state/ScratchState.h"

namespace lineforge
{

// What records are put out with, whether to the printer or to a text file; those of a bookmark list may be of several
// branches.
struct RecordOutput : BranchAccess {
    RecordOutput(Program& p);

    OutputState& State;
    BookmarkState& Bookmarks;
    ScratchState& Scratch;
    lineforge::Printer& Printer;
    ErrorState& Errors;
};

} // namespace lineforge
