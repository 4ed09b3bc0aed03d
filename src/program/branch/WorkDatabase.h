#pragma once

#include "platform/controls/DataControl.h"
#include "program/branch/BranchAccess.h"

namespace lineforge
{

// Opens a database that is to be pointed at later, so that no other program's lock can come in between; null when it
// can't be opened at all. 3260, told, when the user doesn't wait for it any longer.
[[nodiscard]] std::shared_ptr<Database> ReachDatabase(Databases& databases, const FileSystem& files,
                                                      const QString& path);

// Points a data control at that database file, first row current. Errors as `DataControl::Refresh`; it stays with what
// it had then.
void PointAtDatabase(const DatabaseOpening& opening, DataControl& data, const QString& path);
// The same for the record form's.
void PointAtDatabase(const BranchAccess& access, const QString& path);

// The same for the branch in `WorkDir`; `sDbaseName` becomes the whole path.
void OpenWorkDatabase(const BranchAccess& access);

// Stores what is typed in the record form and still pending. To be done before a command gives up anything else: where
// it can't be stored, the form stays as it is, and the command must not have begun.
void StoreTyped(Window<forms::Form3>& recordForm);

// The one cursor on the open branch's records. Error 91 while no database has been opened.
Recordset& Records(Window<forms::Form3>& recordForm);

} // namespace lineforge
