#include "map/subjects/MapClipboard.h"

#include "forms/Form1.h"

namespace lineforge
{

namespace
{
// A clipboard may give back another format.
bool IsSamePicture(const QImage& one, const QImage& other)
{
    constexpr auto format = QImage::Format_RGB32;
    return one.size() == other.size() && one.convertToFormat(format) == other.convertToFormat(format);
}
} // namespace

void CopyMapPicture(Program& p)
{
    p.Map.Copied = {p.Form1->Picture1.Image(), p.Map.Captions};
    p.Clipboard.Clear();
    p.Clipboard.SetPicture(p.Map.Copied.Picture);
}

void PasteMapPicture(Program& p)
{
    const QImage picture = p.Clipboard.HasPicture() ? p.Clipboard.GetPicture() : QImage();
    if (picture.isNull())
        return;
    p.Form1->Picture1.ShowPicture(picture);
    // On a picture from elsewhere none of them stands.
    p.Map.Captions.clear();
    if (IsSamePicture(picture, p.Map.Copied.Picture))
        p.Map.Captions = p.Map.Copied.Captions;
}

} // namespace lineforge
