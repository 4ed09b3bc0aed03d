#pragma once

#include "platform/store/Recordset.h"
#include "program/ui/Meanwhile.h"

#include <QHash>
#include <QStringList>

namespace lineforge
{

// The keys that a pair must agree on; `SearchMask` is the sum of those ticked.
namespace CompareKey
{
inline constexpr int File = 2;
inline constexpr int Surname = 4;
inline constexpr int BirthDate = 8;
} // namespace CompareKey

// The fields that a pair must agree on.
using KeyFields = QStringList;

// By the boxes that the mask sums up.
KeyFields KeysOf(int mask);

// All key fields of the current row as one text, with no difference of case; empty when one of them is empty or Null,
// since such a record agrees with none.
QString KeyOf(const Recordset& record, const KeyFields& keys);

// Where each key stands for the first time. Leaves the cursor at `Eof`.
QHash<QString, Bookmark> FirstOfEachKey(Recordset& records, const KeyFields& keys, Meanwhile& meanwhile);

} // namespace lineforge
