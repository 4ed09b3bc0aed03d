#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/files/FileSystem.h"
#include "platform/machine/Platform.h"
#include "program/state/GedcomState.h"
#include "program/state/ScanState.h"
#include "program/state/ScratchState.h"
#include "program/state/Windows.h"

namespace lineforge
{

struct Program;

// What the report of a GEDCOM file is made with: the source, the report and its window.
struct GedReport {
    GedReport(Program& p);

    GedcomState& State;
    ScratchState& Scratch;
    FileSystem& Files;
    EventLoop& Loop;
    Window<forms::Form11>& Form11;
};

// What a whole conversion works with, which asks and tells besides.
struct GedConversion : GedReport {
    GedConversion(Program& p);

    lineforge::Prompts& Prompts;
    lineforge::Screen& Screen;
    ErrorState& Errors;
};

} // namespace lineforge
