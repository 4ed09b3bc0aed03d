#pragma once

namespace lineforge
{

// A canvas has one pixel for so many twips each way, three times as many as a screen has.
inline constexpr int TwipsPerCanvasPixel = 5;

} // namespace lineforge
