#pragma once

#include "platform/drawing/Geometry.h"

#include <QPoint>
#include <QRect>
#include <QSize>

namespace lineforge
{

// The pixel of the days when the windows were laid out.
inline constexpr int designTwipsAPixel = 15;

// How many twips one pixel of the screen shows: one whole number for the run, so that every mouse point is a whole
// number of twips. Pixels are the toolkit's logical ones.
class Scale
{
public:
    // `dots` is how many dots the screen has for one of the toolkit's pixels.
    explicit Scale(int twipsAPixel, double dots = 1) : twipsAPixel_(twipsAPixel), dots_(dots) {}

    int TwipsAPixel() const { return twipsAPixel_; }
    // How many times as large as it was designed all is shown.
    double Magnification() const { return static_cast<double>(designTwipsAPixel) / twipsAPixel_; }
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
    double dots_;
};

// The largest magnification, told by the smallest number of twips a pixel, at which a window with a client area of that
// size, its menu bar and its title fit into the available pixels. Nothing gets so small that it can't be read: on a
// screen too small for that the window doesn't fit.
Scale FittingScale(Size client, QSize available, int titlePixels, double dots = 1);

} // namespace lineforge
