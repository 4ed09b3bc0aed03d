#pragma once

#include "platform/Geometry.h"

#include <QPoint>
#include <QRect>
#include <QSize>

namespace lineforge
{

// How many twips one pixel of the screen shows: one whole number for the run, so that every mouse point is a whole
// number of twips. Pixels are the toolkit's logical ones.
class Scale
{
public:
    explicit Scale(int twipsAPixel) : twipsAPixel_(twipsAPixel) {}

    int TwipsAPixel() const { return twipsAPixel_; }
    int ToPixels(int twips) const;
    int ToTwips(int pixels) const { return pixels * twipsAPixel_; }
    Size ToTwips(QSize pixels) const { return {ToTwips(pixels.width()), ToTwips(pixels.height())}; }
    QSize ToPixels(Size twips) const { return {ToPixels(twips.Width), ToPixels(twips.Height)}; }
    // Neighbours that touch in twips touch in pixels.
    QRect ToPixels(Rectangle twips) const;

    // The height of text of that many points; never so small that it can't be read.
    int FontPixels(double points) const;

private:
    int twipsAPixel_;
};

// The largest magnification, told by the smallest number of twips a pixel, at which a window with a client area of that
// size, its menu bar and its title fit into the available pixels.
Scale FittingScale(Size client, QSize available, int titlePixels);

} // namespace lineforge
