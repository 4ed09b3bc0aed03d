#pragma once

#include "gallery/GalleryWork.h"

namespace lineforge
{

// A tile has been dropped on another: a file moves to the empty one of the two, or two files change places. The files
// are renamed as the tiles' tags stand.
// KEPT(RearrangeTest.FromAPageBuild_TheNamesAreNotFound_AndTheProgramEnds): a bare name, which a page build leaves
// there, is looked for in the current directory, and that is not the gallery then: error 53.
// Mended, files would move where the program ends now.
void RearrangeTiles(const GalleryWork& work, Image& source, Image& target);

} // namespace lineforge
