#pragma once

#include "gallery/GalleryWork.h"

namespace lineforge
{

// A tile has been dropped on the tile of that index: on itself that is a click, which opens the tile's file, closes
// what is open, or deletes; on another it rearranges the files.
void DropOnTile(const GalleryWork& work, Window<forms::Form1>& mainWindow, int index, Image& source);

} // namespace lineforge
