#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

#include <map>

namespace lineforge
{

// A drawing as the screen shows it, kept so that scrolling copies it only and a change scales only what has changed.
// Each pixel is the average of exactly the stretch of the drawing that it covers, counted from the drawing's own
// corner, so that parts scaled at different times meet without a seam. Kept in bands, made when they are first seen.
class ScaledPicture
{
public:
    static constexpr int BandHeight = 128;

    // How many pixels of the drawing go on one of the screen, across and down.
    void SetRatio(double ratio);

    // A stretch of the drawing has changed; the answer is the pixels of the screen that show it.
    QRect Invalidate(const QRect& drawingPixels);

    // The band that begins at pixel `index * BandHeight`, up to date. What lies outside the drawing shows the
    // background.
    const QImage& Band(int index, int width, const QImage& drawing, const QColor& background);

    // How many pixels have been scaled so far.
    long long PixelsScaled() const { return pixelsScaled_; }

private:
    struct Strip {
        QImage Pixels;
        QRect Stale;
    };

    double ratio_ = 1;
    std::map<int, Strip> strips_;
    long long pixelsScaled_ = 0;
};

// Fills `place` of `target`, whose top left shows pixel `origin` of the scaled drawing.
void ScaleByArea(const QImage& drawing, double ratio, const QColor& background, QPoint origin, const QRect& place,
                 QImage& target);

} // namespace lineforge
