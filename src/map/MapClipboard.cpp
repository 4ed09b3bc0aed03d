#include "map/MapClipboard.h"

namespace lineforge
{

void CopyMapPicture(Program& p)
{
    p.Clipboard.Clear();
    p.Clipboard.SetPicture(p.Form1->Picture1.Image());
}

void PasteMapPicture(Program& p)
{
    const QImage picture = p.Clipboard.HasPicture() ? p.Clipboard.GetPicture() : QImage();
    if (picture.isNull())
        return;
    p.Form1->Picture1.ShowPicture(picture);
    // They don't stand on it any more.
    p.Map.Captions.clear();
}

} // namespace lineforge
