#pragma once

#include "map/tools/Gesture.h"

namespace lineforge
{

// Asks for a text and puts it a little above the press, in the colour of the dialog and the font of the picture. A
// cancelled question leaves an empty text there.
Pressed PlaceText(const ToolWork& work, const Pointing& pointing);

// The text under the press, to be moved or deleted. It travels as a grey rectangle.
Pressed TakeText(const ToolWork& work, const Pointing& pointing);
void DragText(const ToolWork& work, const Pointing& pointing);
Released DropText(const ToolWork& work);
Released DeleteText(const ToolWork& work);

// Looks for the first text whose hit area the last press lies in, rows 0 to `STexts`. `TextIdx` becomes its row, or the
// row behind the last, and `TextMiss` tells which. With `STexts` 0 both stay as they were.
void HitText(const MapState& map, const MapMouseState& mouse, ToolState& tools);

} // namespace lineforge
