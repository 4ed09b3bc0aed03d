#include "gallery/GalleryTile.h"

#include "forms/Form5.h"

namespace lineforge
{

bool IsBuilt(const Image& tile)
{
    return !tile.Tag.value().isEmpty();
}

void ShowEmptyTile(forms::Form5& form, int index)
{
    Image& tile = form.Image1[index];
    tile.Tag = QString::number(index + 1);
    tile.Visible = true;
}

} // namespace lineforge
