#pragma once

#include <QImage>
#include <QString>

namespace lineforge::makehome
{

// A framed picture with its caption beneath. Returns a null image for a drawing that does not exist.
QImage GalleryPicture(const QString& drawing, const QString& caption);

} // namespace lineforge::makehome
