#pragma once

#include "gallery/GalleryFile.h"

namespace lineforge
{

// Copies a file of the user's choice into the record's gallery, at the lowest subscript that is free. Error 76 without
// a gallery directory, 13 and 9 for a file there whose subscript is none; what fails from the dialog on ends the
// command in silence.
void AddGalleryFile(const GalleryWork& work, GalleryKind kind);

} // namespace lineforge
