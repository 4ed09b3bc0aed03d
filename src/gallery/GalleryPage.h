#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The load of the gallery window: sizes it to the screen, and places its tiles in 7 rows of 14, 100 twips apart.
void LoadImageGrid(Program& p);

// Whether the page has come to the tile, which may be hidden for the time of an open item: it has its tag then.
bool IsBuilt(const Image& tile);

// Whether the page on show is that of the record form's record: behind the window the cursor may have gone on.
bool IsPageOfRecord(Program& p);

// Keeps the names of the page's record, which the captions tell, as long as the record form shows them.
void TakePageNames(Program& p);

// The window goes, and its page with it; one that is still being built stops.
void ForgetPage(Program& p);

// Builds the page of the record on the record form, tile by tile with a yield after each, and shows the window. A file
// of the record whose ending is none of a gallery's is told, and no tile is then shown. Error 13 for a subscript that
// is no number, 9 for one below 1 or above 98, 53 or 481 for a picture that can't be loaded; nothing here meets them.
void BuildGalleryPage(Program& p);

// Shows an empty tile, which stands for the subscript behind its index.
void ShowEmptyTile(Program& p, int index);

} // namespace lineforge
