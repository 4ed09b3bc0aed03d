#pragma once

#include "MapOnDisk.h"
#include "Tour.h"

namespace lineforge::tour
{

// The part of the map that the main window shows.
QRect MapArea(const Tour& tour);
QImage MapPicture(const Tour& tour);

// On the screen, from twips on the map while it isn't scrolled.
QRect PlaceOnMap(const Tour& tour, const Rectangle& twips);

// What of a box is seen there, while the map isn't scrolled.
bool ShowsOutline(const Tour& tour, const FiledBox& box);
bool ShowsNumber(const Tour& tour, const FiledBox& box);
bool ShowsForename(const Tour& tour, const FiledBox& box);

// A subject beside the map has a picture.
bool ShowsSubjectPicture(const Tour& tour);

} // namespace lineforge::tour
