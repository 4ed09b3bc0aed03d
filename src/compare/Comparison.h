#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/drawing/PictureFile.h"
#include "platform/files/FileSystem.h"
#include "platform/machine/Platform.h"
#include "program/state/BranchState.h"
#include "program/state/CompareState.h"
#include "program/state/ScanState.h"
#include "program/state/ScratchState.h"
#include "program/state/Windows.h"

namespace lineforge
{

struct Program;

// What the two sides of the comparison stand on and are shown with. Each side's records are those of its window's data
// control as it is pointed then: the record form's on the left, the comparison's own on the right.
struct ComparedSides {
    ComparedSides(Program& p);

    CompareState& State;
    const BranchState& Branch;
    FileSystem& Files;
    PictureCache& Pictures;
    ErrorState& Errors;
    Window<forms::Form3>& Form3;
    Window<forms::Form6>& Form6;
};

// What a command of the comparison works with: the sides, the pair at hand, and whom it tells.
struct Comparison : ComparedSides {
    Comparison(Program& p);

    ScratchState& Scratch;
    lineforge::Prompts& Prompts;
    EventLoop& Loop;
};

} // namespace lineforge
