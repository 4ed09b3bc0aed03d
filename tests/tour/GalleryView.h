#pragma once

#include "Tour.h"

namespace lineforge::tour
{

// The gallery of the first record of the example's first branch.

// By the button of the main window.
ScreenWindow OpenGallery(Tour& tour);
// Under its title while that file is open, and when the last one has been closed.
ScreenWindow AwaitItem(Tour& tour, const QString& file);
ScreenWindow AwaitClosedItem(Tour& tour);

// On the screen. A control of a player stands in its panel.
QRect TileOnGallery(const Tour& tour, const ScreenWindow& gallery, int index);
QRect OnPanel(const Tour& tour, const ScreenWindow& gallery, const PictureBox& panel, const Control& control);

} // namespace lineforge::tour
