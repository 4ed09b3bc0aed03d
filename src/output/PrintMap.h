#pragma once

#include "map/items/MapWork.h"
#include "platform/machine/Printer.h"

namespace lineforge
{

// The whole map on one page, on its side, in a frame; what is larger than the page is cut off. Errors are shown.
void PrintMap(const MapWork& work, Printer& printer, Screen& screen);

} // namespace lineforge
