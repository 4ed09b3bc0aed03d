#include "compare/Comparison.h"

#include "program/state/Program.h"

namespace lineforge
{

ComparedSides::ComparedSides(Program& p)
    : State(p.Compare), Branch(p.Branch), Files(p.Files), Pictures(p.Pictures), Errors(p.Errors), Form3(p.Form3),
      Form6(p.Form6)
{
}

Comparison::Comparison(Program& p) : ComparedSides(p), Scratch(p.Scratch), Prompts(p.Prompts), Loop(p.Loop) {}

} // namespace lineforge
