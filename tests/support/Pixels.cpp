#include "support/Pixels.h"

#include "platform/canvas/PictureBox.h"

#include <gtest/gtest.h>

namespace lineforge
{

namespace
{
int PixelOf(int twips)
{
    const int whole = twips / PictureBox::TwipsPerPixel;
    return twips % PictureBox::TwipsPerPixel < 0 ? whole - 1 : whole;
}

Colour ColourOf(QRgb pixel)
{
    return Rgb(static_cast<unsigned>(qRed(pixel)), static_cast<unsigned>(qGreen(pixel)),
               static_cast<unsigned>(qBlue(pixel)));
}

int CountIn(const QImage& image, Colour colour, const QRect& pixels)
{
    const QRect inside = pixels.intersected(image.rect());
    int count = 0;
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x)
            count += ColourOf(image.pixel(x, y)) == colour;
    return count;
}
} // namespace

int CountPixels(const QImage& image, Colour colour, Rectangle place)
{
    const QPoint topLeft(PixelOf(place.Left), PixelOf(place.Top));
    const QPoint behind(PixelOf(place.Left + place.Width), PixelOf(place.Top + place.Height));
    return CountIn(image, colour, QRect(topLeft, behind - QPoint(1, 1)));
}

int CountPixels(const QImage& image, Colour colour)
{
    return CountIn(image, colour, image.rect());
}

int CountPixels(const PictureBox& picture, Colour colour, Rectangle place)
{
    return CountPixels(ShownBy(picture), colour, place);
}

int CountPixels(const PictureBox& picture, Colour colour)
{
    return CountPixels(ShownBy(picture), colour);
}

Colour ColourAt(const QImage& image, Point place)
{
    const QPoint pixel(PixelOf(place.X), PixelOf(place.Y));
    if (!image.rect().contains(pixel)) {
        ADD_FAILURE() << "(" << place.X << ", " << place.Y << ") lies outside the picture";
        return 0;
    }
    return ColourOf(image.pixel(pixel));
}

Colour ColourAt(const PictureBox& picture, Point place)
{
    return ColourAt(ShownBy(picture), place);
}

bool IsBlank(const PictureBox& picture)
{
    const QImage image = ShownBy(picture);
    return CountPixels(image, picture.BackColor) == image.width() * image.height();
}

QImage ShownBy(const PictureBox& picture)
{
    if (!picture.Drawing().isNull())
        return picture.Drawing();
    QImage image(PixelOf(picture.Width), PixelOf(picture.Height), QImage::Format_RGB32);
    image.fill(ToQColor(picture.BackColor));
    return image;
}

} // namespace lineforge
