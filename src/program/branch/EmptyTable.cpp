#include "program/branch/EmptyTable.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

bool TellIfEmptyTable(const Recordset& records, Prompts& prompts)
{
    if (!records.IsEmpty())
        return false;
    prompts.MsgBox(u"Database Empty"_s, u"This Database has no records to access"_s, Buttons::Information);
    return true;
}

} // namespace lineforge
