#pragma once

#include "platform/Geometry.h"
#include "platform/Surface.h"

#include <QImage>

#include <optional>

class QAbstractButton;
class QPushButton;

namespace lineforge
{

// Makes the mark of an option or a check box, and its distance to the text, as large as the text asks for.
void SizeMark(QAbstractButton& button);

// The picture in the place of a caption; a button that is a picture has no border of its own.
void ShowOnButton(QPushButton& button, const QImage& picture);

// The colour behind its caption, which is then black or white; none: as buttons usually look.
void ColourButton(QPushButton& button, const std::optional<Colour>& colour);

} // namespace lineforge
