#include "program/branch/EmptyTable.h"

#include "program/branch/WorkDatabase.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

bool TellIfEmptyTable(Program& p)
{
    if (!Records(p).IsEmpty())
        return false;
    p.Prompts.MsgBox(u"Database Empty"_s, u"This Database has no records to access"_s, Buttons::Information);
    return true;
}

} // namespace lineforge
