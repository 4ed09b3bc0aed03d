#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// Opens the file of the selected tile. Errors of its picture, its player or the editor.
void OpenGalleryItem(Program& p);

// Leaves the picture, sound or video that is open; nothing when none is.
void CloseGalleryItem(Program& p);

// Takes an open item off the window, for a new page or because it is closed. By itself it leaves the item counting as
// open: the next click on a tile closes it.
void PutItemAway(Program& p);

// The Exit buttons of the two players; either ends a deletion that waits for its tile.
void ExitSoundPlayer(Program& p);
void ExitVideoPlayer(Program& p);

// A deletion that waits for its tile isn't wanted any more.
void CancelDeletion(Program& p);

} // namespace lineforge
