#pragma once

#include "platform/machine/Prompts.h"
#include "platform/store/Recordset.h"

namespace lineforge
{

// Whether the open branch, whose records these are, has none; tells the user so.
[[nodiscard]] bool TellIfEmptyTable(const Recordset& records, Prompts& prompts);

} // namespace lineforge
