#pragma once

#include "program/Program.h"

namespace lineforge
{

// Points a data control at that database file, first row current. Errors as `DataControl::Refresh`; it stays with what
// it had then.
void PointAtDatabase(Program& p, DataControl& data, const QString& path);
// The same for the record form's.
void PointAtDatabase(Program& p, const QString& path);

// The same for the branch in `WorkDir`; `sDbaseName` becomes the whole path.
void OpenWorkDatabase(Program& p);

// The one cursor on the open branch's records. Error 91 while no database has been opened.
Recordset& Records(Program& p);

} // namespace lineforge
