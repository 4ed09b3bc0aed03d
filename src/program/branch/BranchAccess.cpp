#include "program/branch/BranchAccess.h"

#include "program/state/Program.h"

namespace lineforge
{

DatabaseOpening::DatabaseOpening(Program& p)
    : Databases(p.Databases), RefusedDatabases(p.RefusedDatabases), Files(p.Files), HomeDir(p.Branch.HomeDir),
      ExecutableDirectory(p.ExecutableDirectory), Prompts(p.Prompts), Loop(p.Loop)
{
}

BranchRecords::BranchRecords(Program& p) : Branch(p.Branch), Record(p.Record), Form3(p.Form3) {}

BranchAccess::BranchAccess(Program& p) : DatabaseOpening(p), BranchRecords(p) {}

BranchAccess::BranchAccess(const DatabaseOpening& opening, const BranchRecords& records)
    : DatabaseOpening(opening), BranchRecords(records)
{
}

} // namespace lineforge
