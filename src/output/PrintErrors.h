#pragma once

#include "program/ui/BranchUi.h"

#include <utility>

namespace lineforge
{

// Runs one statement of a printing command: what it refuses is shown by `ReportError`, and the command goes on.
template <class Statement>
void ReportingErrors(Program& p, Statement&& statement)
{
    try {
        std::forward<Statement>(statement)();
    } catch (const RuntimeError& error) {
        ReportError(p.Errors, p.Prompts, error);
    }
}

} // namespace lineforge
