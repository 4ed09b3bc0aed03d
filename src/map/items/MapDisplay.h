#pragma once

#include "map/items/MapSheet.h"
#include "map/items/MapWork.h"

namespace lineforge
{

// Repaints boxes, texts and lines from the arrays up to their counts, then all captions; a spoilt item costs its own
// drawing. The current record stays, its position in `SavedBookmark`; from behind the last row the cursor comes back to
// what stood there before.
void RedrawMap(const MapWork& work, const MapSheet& sheet);

// Shows a point of the picture beside the map, and the corner that a box centred on it would have; both are kept for
// the mapping of a new box.
void ShowCoordinates(MapMouseState& mouse, forms::Form1& form, double x, double y);

} // namespace lineforge
