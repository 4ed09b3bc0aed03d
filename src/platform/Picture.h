#pragma once

#include "platform/FileSystem.h"

#include <QImage>

namespace lineforge
{

// A picture file, upright as its camera says. Error 53 when it isn't there, 481 when it is no picture or one larger
// than the toolkit's limit for a picture in memory.
QImage LoadPicture(const FileSystem& files, const QString& path);

} // namespace lineforge
