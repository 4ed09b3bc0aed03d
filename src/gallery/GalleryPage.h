#pragma once

#include "gallery/GalleryWork.h"

namespace lineforge
{

// The load of the gallery window: sizes it to the screen, and places its tiles in 7 rows of 14, 100 twips apart.
void LoadImageGrid(forms::Form5& form, const Screen& screen);

// The window goes, and its page with it; one that is still being built stops.
void ForgetPage(GalleryState& gallery);

// Builds the page of the record on the record form, tile by tile with a yield after each, and shows the window. A file
// of the record whose ending is none of a gallery's is told, and no tile is then shown. Error 13 for a subscript that
// is no number, 9 for one below 1 or above 98, 53 or 481 for a picture that can't be loaded; nothing here meets them.
void BuildGalleryPage(const GalleryWork& work);

} // namespace lineforge
