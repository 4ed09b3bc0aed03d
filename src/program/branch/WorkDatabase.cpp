#include "program/branch/WorkDatabase.h"

#include "forms/Form3.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/OldDatabase.h"

#include <QScopeGuard>

namespace lineforge
{

using namespace Qt::StringLiterals;

std::shared_ptr<Database> ReachDatabase(Databases& databases, const FileSystem& files, const QString& path)
{
    try {
        return databases.Open(files, path);
    } catch (const RuntimeError& refusal) {
        if (refusal.IsTold)
            throw;
        return nullptr;
    }
}

void PointAtDatabase(const DatabaseOpening& opening, DataControl& data, const QString& path)
{
    ConvertIfOld(opening, path, OldDatabaseUse::Command);
    const QString before = data.DatabaseName;
    data.DatabaseName = path;
    data.RecordSource = u"Tree99"_s;
    // The name is always that of the database that is open.
    auto nameBack = qScopeGuard([&] { data.DatabaseName = before; });
    data.Refresh(opening.Databases, opening.Files);
    nameBack.dismiss();
}

void PointAtDatabase(const BranchAccess& access, const QString& path)
{
    PointAtDatabase(access, access.Form3->Data1, path);
    // It was a place in the database before.
    access.Record.SavedBookmark.reset();
}

void OpenWorkDatabase(const BranchAccess& access)
{
    BranchState& branch = access.Branch;
    // Spelt so since the first version; names are found without regard to case.
    branch.sDbaseName = branch.WorkDir + PathSeparator + u"Lfgdat_" + BranchLetter(branch.WorkDir) + u".mdb";
    PointAtDatabase(access, branch.sDbaseName);
}

void StoreTyped(Window<forms::Form3>& recordForm)
{
    if (recordForm.IsLoaded())
        recordForm->Data1.Store();
}

Recordset& Records(Window<forms::Form3>& recordForm)
{
    return recordForm->Data1.Records();
}

} // namespace lineforge
