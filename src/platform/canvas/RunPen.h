#pragma once

#include "platform/drawing/Surface.h"

#include <QImage>
#include <QRect>

#include <algorithm>

namespace lineforge
{

// What a pen of that colour stores in a pixel, or turns over there.
QRgb PenBits(DrawMode mode, Colour colour);

// Sets runs of pixels of an image of `QImage::Format_RGB32`, just as a painter does in that mode. What sticks out of
// the image is cut off.
class RunPen
{
public:
    // Inline like the filling of a run, so that what they share is kept in registers over a loop.
    RunPen(QImage& image, DrawMode mode, Colour colour)
        : bits_(image.bits()), bytesPerLine_(image.bytesPerLine()), width_(image.width()), height_(image.height()),
          copies_(mode == DrawMode::Copy), colour_(PenBits(mode, colour))
    {
        Q_ASSERT(image.format() == QImage::Format_RGB32);
    }

    void Fill(int x, int y, int length) const
    {
        const int from = std::max(x, 0);
        const int to = std::min(x + length, width_);
        if (from >= to || y < 0 || y >= height_)
            return;
        QRgb* pixel = reinterpret_cast<QRgb*>(bits_ + y * bytesPerLine_) + from;
        QRgb* const end = pixel + (to - from);
        if (copies_)
            for (; pixel != end; ++pixel)
                *pixel = colour_;
        else
            for (; pixel != end; ++pixel)
                *pixel ^= colour_;
    }

    void Fill(const QRect& area) const
    {
        const QRect inside = area.intersected(QRect(0, 0, width_, height_));
        for (int y = inside.top(); y <= inside.bottom(); ++y)
            Fill(inside.left(), y, inside.width());
    }

private:
    uchar* bits_;
    qsizetype bytesPerLine_;
    int width_;
    int height_;
    bool copies_;
    QRgb colour_;
};

} // namespace lineforge
