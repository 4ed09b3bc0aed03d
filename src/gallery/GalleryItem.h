#pragma once

#include "gallery/GalleryWork.h"

namespace lineforge
{

// Opens the file of the selected tile. Errors of its picture, its player or the editor.
void OpenGalleryItem(const GalleryWork& work);

// Leaves the picture, sound or video that is open; nothing when none is.
void CloseGalleryItem(const GalleryWork& work);

// Takes an open item off the window, for a new page or because it is closed. By itself it leaves the item counting as
// open: the next click on a tile closes it.
void PutItemAway(GalleryState& gallery, forms::Form5& form);

// The Exit buttons of the two players; either ends a deletion that waits for its tile.
void ExitSoundPlayer(const GalleryWork& work);
void ExitVideoPlayer(const GalleryWork& work);

// A deletion that waits for its tile isn't wanted any more.
void CancelDeletion(ScratchState& scratch);

} // namespace lineforge
