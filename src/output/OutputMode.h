#pragma once

namespace lineforge
{

// The values of `OutputMode`: where records are being put out to.
namespace OutputMode
{
inline constexpr int None = 0; // or a print of the whole database
inline constexpr int SingleToPrinter = 1;
inline constexpr int ListToFile = 3;
inline constexpr int DatabaseToFile = 4;
} // namespace OutputMode

} // namespace lineforge
