#pragma once

#include "Tour.h"

namespace lineforge::tour
{

// The drawing tools beside the map, by mouse.

// By the menu; waits until all tools are seen.
void OpenTools(Tour& tour);

// Clicks a tool and waits until it looks different.
void PressTool(Tour& tour, const Image& tool);

// On the screen, from twips on the map while it isn't scrolled.
QPoint PointOnMap(const Tour& tour, QPoint twips);

} // namespace lineforge::tour
