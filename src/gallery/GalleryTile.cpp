#include "gallery/GalleryTile.h"

#include "forms/Form5.h"

namespace lineforge
{

bool IsBuilt(const Image& tile)
{
    return !tile.Tag.value().isEmpty();
}

void ShowEmptyTile(Program& p, int index)
{
    Image& tile = p.Form5->Image1[index];
    tile.Tag = QString::number(index + 1);
    tile.Visible = true;
}

} // namespace lineforge
