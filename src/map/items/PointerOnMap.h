#pragma once

#include "platform/drawing/Geometry.h"

namespace lineforge
{

// The pointer of a mouse event on the map as a point of whole twips, the fraction dropped. A button that is held takes
// the mouse along to wherever the screen ends: so far out the point stops where sums of places and drags still fit 16
// bits.
Point PointerOnMap(double x, double y);

} // namespace lineforge
