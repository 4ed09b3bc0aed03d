#pragma once

#include "MapOnDisk.h"
#include "Tour.h"

namespace lineforge::tour
{

// The subject beside the map, and the box that stands for it.

// Number, picture and fields.
QImage PanelPicture(const Tour& tour);

QPoint CentreOf(const Tour& tour, const FiledBox& box);
bool ShowsMarker(const Tour& tour, const FiledBox& box, QColor colour);
// The box and what is printed across its lower edge.
QImage PictureOfBox(const Tour& tour, const FiledBox& box);
// A frame of the lineage around the box; it reaches from above the box to well below it.
bool ShowsFrame(const Tour& tour, const FiledBox& box, QColor colour);

} // namespace lineforge::tour
