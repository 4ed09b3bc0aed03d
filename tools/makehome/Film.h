#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

namespace lineforge::makehome
{

// A complete film file of Motion-JPEG frames, all of the size of the first.
QByteArray FilmFile(const QList<QImage>& frames, int framesPerSecond);

} // namespace lineforge::makehome
