#pragma once

#include "platform/store/Recordset.h"
#include "program/ui/Meanwhile.h"

#include <QHash>
#include <QStringList>

namespace lineforge
{

// The fields that a pair must agree on.
using CompareKeys = QStringList;

// By the boxes that the mask sums up.
CompareKeys KeysOf(int mask);

// All key fields of the current row as one text, with no difference of case; empty when one of them is empty or Null,
// since such a record agrees with none.
QString KeyOf(const Recordset& record, const CompareKeys& keys);

// Where each key stands for the first time. Leaves the cursor at `Eof`.
QHash<QString, Bookmark> FirstOfEachKey(Recordset& records, const CompareKeys& keys, Meanwhile& meanwhile);

} // namespace lineforge
