#pragma once

#include "program/Program.h"

namespace lineforge
{

// The values of `ScanState` while two branches are compared.
namespace ComparePair
{
inline constexpr int None = 0;
inline constexpr int Walked = 1; // all fields of the pair; the next press moves on
inline constexpr int InHand = 2; // agrees on its keys
inline constexpr int Ended = 3;  // no further pair does
} // namespace ComparePair

// The keys that a pair must agree on; `SearchMask` is the sum of those ticked.
namespace CompareKey
{
inline constexpr int File = 2;
inline constexpr int Surname = 4;
inline constexpr int BirthDate = 8;
} // namespace CompareKey

// Goes on to the next pair that agrees on the keys of `SearchMask`, case ignored, and stands on it; the pair at hand is
// the first to be looked at, unless all its fields have been walked. An empty key agrees with none. Each current record
// meets all compare records, in the order of the tables. The ends of the recordsets are told.
void SearchWhereSame(Program& p);

} // namespace lineforge
