#pragma once

#include "map/items/MapSheet.h"
#include "map/items/MapWork.h"
#include "platform/drawing/Surface.h"

namespace lineforge
{

// One item of the arrays, in its own colour and font. A free row is not drawn. A text leaves its colour in the pen, the
// others leave the pen as it was. Error 13 for a value that is no number.
void DrawBox(const MapState& map, const MapSheet& sheet, int row);
void DrawLine(const MapState& map, const MapSheet& sheet, int row);
void DrawText(const MapPicture& shown, const MapSheet& sheet, int row);

// The same in that colour instead of the item's own, and a free row as well.
void DrawBoxIn(const MapState& map, const MapSheet& sheet, int row, Colour pen);
void DrawLineIn(const MapState& map, const MapSheet& sheet, int row, Colour pen);
void DrawTextIn(const MapPicture& shown, const MapSheet& sheet, int row, Colour pen);

// The outline of a box in its row's colour; black for one that is no number.
Colour ColourOfBox(const MapState& map, int row);

// The font that a row of the texts names; 8 points for a size that is no number.
TextFont FontOfText(const MapState& map, int row);

// The text at that place of the surface, as much of it as can be seen there.
void PrintOnMap(Surface& surface, Point place, const QString& text);

// The drawing font between operations: Arial, 8 points, not bold.
void ResetMapFont(Surface& surface);

// Wipes the whole picture of the map.
void ClearMapPicture(MapState& map, forms::Form1& form);

} // namespace lineforge
