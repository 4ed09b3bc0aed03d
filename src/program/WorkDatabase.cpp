#include "program/WorkDatabase.h"

#include "program/BranchPaths.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

void PointAtDatabase(Program& p, const QString& path)
{
    DataControl& data = p.Form3->Data1;
    data.DatabaseName = path;
    data.RecordSource = u"Tree99"_s;
    data.Refresh(p.Databases, p.Files);
}

void OpenWorkDatabase(Program& p)
{
    // Spelt so since the first version; names are found without regard to case.
    p.Branch.sDbaseName = p.Branch.WorkDir + PathSeparator + u"Lfgdat_" + BranchLetter(p.Branch.WorkDir) + u".mdb";
    PointAtDatabase(p, p.Branch.sDbaseName);
}

Recordset& Records(Program& p)
{
    return p.Form3->Data1.Records();
}

} // namespace lineforge
