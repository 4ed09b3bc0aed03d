#include "gedcom/report/GedReport.h"

#include "program/state/Program.h"

namespace lineforge
{

GedReport::GedReport(Program& p) : State(p.Gedcom), Scratch(p.Scratch), Files(p.Files), Loop(p.Loop), Form11(p.Form11)
{
}

GedConversion::GedConversion(Program& p) : GedReport(p), Prompts(p.Prompts), Screen(p.Screen), Errors(p.Errors) {}

} // namespace lineforge
