#pragma once

namespace lineforge
{

// The values of `ToolSel`: what the tools are about to do. Those of one kind of item lie 10 apart.
namespace ToolSelection
{
inline constexpr int None = 0;
inline constexpr int ZoneDraw = 1;  // waiting for the rubber rectangle
inline constexpr int ZoneFixed = 3; // waiting for the drag
inline constexpr int ZoneDrag = 4;
inline constexpr int LineDraw = 7;
inline constexpr int BoxDraw = 8;
inline constexpr int TextDraw = 9;
inline constexpr int LineMove = 17;
inline constexpr int BoxMove = 18;
inline constexpr int TextMove = 19;
inline constexpr int LineDelete = 27;
inline constexpr int BoxDelete = 28;
inline constexpr int TextDelete = 29;
} // namespace ToolSelection

} // namespace lineforge
