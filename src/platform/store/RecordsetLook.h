#pragma once

#include "platform/store/Recordset.h"
#include "platform/store/TableRows.h"

namespace lineforge
{

// While it lives no other program changes the file, and the cursor has followed what they did before.
class Recordset::Look
{
public:
    explicit Look(const Recordset& cursor)
        : hold_(cursor.rows_, cursor.held_ ? TableRows::Notices::No : TableRows::Notices::Yes)
    {
        cursor.RenewStatements();
        cursor.FollowOthers();
    }

private:
    TableRows::Hold hold_;
};

} // namespace lineforge
