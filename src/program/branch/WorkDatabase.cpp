#include "program/branch/WorkDatabase.h"

#include "forms/Form3.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/OldDatabase.h"

#include <QScopeGuard>

namespace lineforge
{

using namespace Qt::StringLiterals;

std::shared_ptr<Database> ReachDatabase(Program& p, const QString& path)
{
    try {
        return p.Databases.Open(p.Files, path);
    } catch (const RuntimeError& refusal) {
        if (refusal.IsTold)
            throw;
        return nullptr;
    }
}

void PointAtDatabase(Program& p, DataControl& data, const QString& path)
{
    ConvertIfOld(p, path, OldDatabaseUse::Command);
    const QString before = data.DatabaseName;
    data.DatabaseName = path;
    data.RecordSource = u"Tree99"_s;
    // The name is always that of the database that is open.
    auto nameBack = qScopeGuard([&] { data.DatabaseName = before; });
    data.Refresh(p.Databases, p.Files);
    nameBack.dismiss();
}

void PointAtDatabase(Program& p, const QString& path)
{
    PointAtDatabase(p, p.Form3->Data1, path);
    // It was a place in the database before.
    p.Record.SavedBookmark.reset();
}

void OpenWorkDatabase(Program& p)
{
    // Spelt so since the first version; names are found without regard to case.
    p.Branch.sDbaseName = p.Branch.WorkDir + PathSeparator + u"Lfgdat_" + BranchLetter(p.Branch.WorkDir) + u".mdb";
    PointAtDatabase(p, p.Branch.sDbaseName);
}

void StoreTyped(Program& p)
{
    if (p.Form3.IsLoaded())
        p.Form3->Data1.Store();
}

Recordset& Records(Program& p)
{
    return p.Form3->Data1.Records();
}

} // namespace lineforge
