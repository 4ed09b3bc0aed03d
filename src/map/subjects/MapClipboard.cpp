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

void CopyMapPicture(MapState& map, forms::Form1& form, Clipboard& clipboard)
{
    map.Copied = {form.Picture1.Image(), map.Captions};
    clipboard.Clear();
    clipboard.SetPicture(map.Copied.Picture);
}

void PasteMapPicture(MapState& map, forms::Form1& form, Clipboard& clipboard)
{
    const QImage picture = clipboard.HasPicture() ? clipboard.GetPicture() : QImage();
    if (picture.isNull())
        return;
    form.Picture1.ShowPicture(picture);
    // On a picture from elsewhere none of them stands.
    map.Captions.clear();
    if (IsSamePicture(picture, map.Copied.Picture))
        map.Captions = map.Copied.Captions;
}

} // namespace lineforge
