#pragma once

#include "program/ui/BranchUi.h"

#include <utility>

namespace lineforge
{

// Runs one statement of a printing command: what it refuses is shown by `ReportError`, and the command goes on.
template <class Statement>
void ReportingErrors(ErrorState& errors, Prompts& prompts, Statement&& statement)
{
    try {
        std::forward<Statement>(statement)();
    } catch (const RuntimeError& error) {
        ReportError(errors, prompts, error);
    }
}

} // namespace lineforge
