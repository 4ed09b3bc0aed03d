#pragma once

#include "platform/drawing/Geometry.h"
#include "platform/drawing/Surface.h"

#include <QImage>

#include <optional>

class QPushButton;

namespace lineforge
{

// The picture in the place of a caption; a button that is a picture has no border of its own.
void ShowOnButton(QPushButton& button, const QImage& picture);

// The colour behind its caption, which is then black or white; none: as buttons usually look.
void ColourButton(QPushButton& button, const std::optional<Colour>& colour);

} // namespace lineforge
