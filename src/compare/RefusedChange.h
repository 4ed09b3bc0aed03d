#pragma once

#include "compare/Sides.h"

#include <functional>

namespace lineforge
{

// Changes the record of a side; `change` puts the values. Where that is the other side's record as well, what is typed
// on the record form goes before, and the form's boxes show the change: nobody writes over it in a text from before it.
// Where the change is refused nothing of it stays behind for the next saving, and the side shows what it showed before.
// Where another program is the reason, and the user knows, it shows the record as it is now, as far as it can be read.
void ChangeOrShowAgain(const ComparedSides& sides, const Side& side,
                       const std::function<void(Recordset& record)>& change);

} // namespace lineforge
