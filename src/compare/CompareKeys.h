#pragma once

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

} // namespace lineforge
