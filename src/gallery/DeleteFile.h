#pragma once

#include "gallery/GalleryWork.h"

namespace lineforge
{

// Asks for the tile whose file is to go; the next click on one is the answer.
void BeginDeletion(const GalleryWork& work);

// That click: deletes all files of the tile's subscript, and the one that the tile names. Nothing on an empty tile.
// Error 75 for a file that can't be deleted.
void DeleteFileOfTile(const GalleryWork& work, int index);

} // namespace lineforge
