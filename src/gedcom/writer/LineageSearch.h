#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/files/FileSystem.h"
#include "platform/machine/Platform.h"
#include "program/state/BranchState.h"
#include "program/state/LineageState.h"
#include "program/state/RecordState.h"
#include "program/state/ScratchState.h"
#include "program/state/Windows.h"

namespace lineforge
{

struct Program;

// What a lineage is collected with: the open branch's records, the table, and the panel that tells of it.
struct LineageSearch {
    LineageSearch(Program& p);

    LineageState& State;
    RecordState& Record;
    ScratchState& Scratch;
    const BranchState& Branch;
    EventLoop& Loop;
    Window<forms::Form3>& Form3;
    Window<forms::Form12>& Form12;
};

// What the whole file is written with.
struct GedcomWriting : LineageSearch {
    GedcomWriting(Program& p);

    FileSystem& Files;
    lineforge::Prompts& Prompts;
    ErrorState& Errors;
};

} // namespace lineforge
