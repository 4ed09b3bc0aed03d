#pragma once

// What the one word `ScanState` says to gallery, comparison and GEDCOM conversion. None of them resets the others'.
namespace lineforge
{

namespace GalleryScan
{
inline constexpr int Browsing = 0;
inline constexpr int ItemOpen = 1;
inline constexpr int Deleting = 6; // the next click on a tile deletes its file
} // namespace GalleryScan

namespace ComparePair
{
inline constexpr int None = 0;
inline constexpr int Walked = 1; // all fields of the pair; the next press moves on
inline constexpr int InHand = 2; // agrees on its keys
inline constexpr int Ended = 3;  // no further pair does
} // namespace ComparePair

// Where the seek of a tag stands in the source.
namespace GedRecord
{
inline constexpr int Outside = 0;
inline constexpr int Inside = 1;
} // namespace GedRecord

} // namespace lineforge
