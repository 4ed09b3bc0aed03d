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
    if (!p.Clipboard.HasPicture())
        return;
    if (const QImage picture = p.Clipboard.GetPicture(); !picture.isNull())
        p.Form1->Picture1.ShowPicture(picture);
}

} // namespace lineforge
