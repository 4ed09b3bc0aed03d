#pragma once

#include "platform/drawing/Geometry.h"
#include "platform/drawing/Surface.h"

#include <QImage>

namespace lineforge
{

class PictureBox;

// Facts about the pixels of a picture. Places are in twips from its top left; an image is taken to be a drawing of
// `PictureBox::TwipsPerPixel`. A picture on which nothing has been drawn yet shows its background everywhere.

// The pixels of that colour whose top left lies in the place; what sticks out of the picture doesn't count.
int CountPixels(const QImage& image, Colour colour, Rectangle place);
int CountPixels(const QImage& image, Colour colour);
int CountPixels(const PictureBox& picture, Colour colour, Rectangle place);
int CountPixels(const PictureBox& picture, Colour colour);

// The colour at a place; outside the picture that is a failure of the test.
Colour ColourAt(const QImage& image, Point place);
Colour ColourAt(const PictureBox& picture, Point place);

// Whether every pixel has the background's colour.
bool IsBlank(const PictureBox& picture);

// What the picture shows, an image even before the first drawing.
QImage ShownBy(const PictureBox& picture);

} // namespace lineforge
