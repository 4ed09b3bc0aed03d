#include "output/RecordOutput.h"

#include "program/state/Program.h"

namespace lineforge
{

RecordOutput::RecordOutput(Program& p)
    : BranchAccess(p), State(p.Output), Bookmarks(p.Bookmarks), Scratch(p.Scratch), Printer(p.Printer), Errors(p.Errors)
{
}

} // namespace lineforge
