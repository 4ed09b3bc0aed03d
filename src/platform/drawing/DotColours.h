#pragma once

#include <QImage>

namespace lineforge
{

// The same picture with the colour of each dot in place of its number in a table of colours. Whoever draws takes that
// number as it is, be the table shorter or not there at all; here what lies beyond the last colour has none.
inline QImage WithDotColours(const QImage& picture)
{
    switch (picture.format()) {
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
    case QImage::Format_Indexed8:
        return picture.convertToFormat(QImage::Format_ARGB32);
    default:
        return picture;
    }
}

} // namespace lineforge
