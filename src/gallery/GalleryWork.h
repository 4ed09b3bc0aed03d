#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/drawing/Thumbnails.h"
#include "platform/files/FileSystem.h"
#include "platform/machine/Platform.h"
#include "program/state/BranchState.h"
#include "program/state/GalleryState.h"
#include "program/state/ScanState.h"
#include "program/state/ScratchState.h"
#include "program/state/Windows.h"

namespace lineforge
{

struct Program;

// What pictures come onto the tiles with.
struct TilePictures {
    TilePictures(Program& p);

    FileSystem& Files;
    lineforge::Screen& Screen;
    lineforge::Thumbnails& Thumbnails;
    EventLoop& Loop;
};

// What a gallery works with: its page, the window that shows it, and the record form and the branch whose page it is.
struct GalleryWork : TilePictures {
    GalleryWork(Program& p);

    GalleryState& State;
    ScratchState& Scratch;
    const BranchState& Branch;
    lineforge::Prompts& Prompts;
    lineforge::Processes& Processes;
    ErrorState& Errors;
    Window<forms::Form3>& Form3;
    Window<forms::Form5>& Form5;
};

} // namespace lineforge
