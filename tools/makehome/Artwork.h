#pragma once

#include <QString>

namespace lineforge::makehome
{

// The fixed pictures and sounds; the icons are drawn from the SVG files of the data directory.
void MakeArtwork(const QString& dataDirectory, const QString& targetDirectory);

} // namespace lineforge::makehome
