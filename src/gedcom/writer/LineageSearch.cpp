#include "gedcom/writer/LineageSearch.h"

#include "program/state/Program.h"

namespace lineforge
{

LineageSearch::LineageSearch(Program& p)
    : State(p.Lineage), Record(p.Record), Scratch(p.Scratch), Branch(p.Branch), Loop(p.Loop), Form3(p.Form3),
      Form12(p.Form12)
{
}

GedcomWriting::GedcomWriting(Program& p) : LineageSearch(p), Files(p.Files), Prompts(p.Prompts), Errors(p.Errors) {}

} // namespace lineforge
