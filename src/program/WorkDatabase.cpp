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
    p.Branch.sDbaseName = DatabasePath(p.Branch.WorkDir);
    PointAtDatabase(p, p.Branch.sDbaseName);
}

Recordset& Records(Program& p)
{
    return p.Form3->Data1.Records();
}

} // namespace lineforge
