#pragma once

#include "platform/base/RuntimeError.h"
#include "program/branch/BranchAccess.h"
#include "program/state/GalleryState.h"
#include "program/state/MapMouseState.h"
#include "program/state/MapState.h"
#include "program/state/ScratchState.h"
#include "program/state/ToolState.h"

namespace lineforge
{

// The items, and the picture that shows them.
struct MapPicture {
    MapPicture(Program& p);

    MapState& Map;
    ErrorState& Errors;
    Window<forms::Form1>& Form1;
};

// What brings a record and its box together: which is whose, what stands in it, and the marker on the current one.
struct BoxWork : BranchRecords, MapPicture {
    BoxWork(Program& p);

    MapMouseState& Mouse;
    ToolState& Tools;
    ScratchState& Scratch;
    GalleryState& Gallery;
};

// What the whole map is drawn with: the people in the boxes may be of any branch, whose database is then opened.
struct MapWork : BoxWork, DatabaseOpening {
    MapWork(Program& p);

    operator BranchAccess() const { return {*this, *this}; }
};

} // namespace lineforge
