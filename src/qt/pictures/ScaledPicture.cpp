#include "qt/pictures/ScaledPicture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace lineforge
{

namespace
{
// The weight of a whole pixel. Four channels of 255 times a weight in both directions must fit 32 bits for ratios up to
// 16; a drawing is never shown smaller than that.
constexpr int wholePixel = 64;

// The pixels of one line of the drawing that one pixel of the screen covers, the first and the last in part.
struct Span {
    int First = 0;
    int Last = -1;
    std::uint32_t FirstWeight = 0;
    std::uint32_t LastWeight = 0;

    std::uint32_t Weight(int at) const
    {
        return at == First ? FirstWeight : at == Last ? LastWeight : static_cast<std::uint32_t>(wholePixel);
    }
    std::uint32_t Total() const
    {
        std::uint32_t total = 0;
        for (int at = First; at <= Last; ++at)
            total += Weight(at);
        return total;
    }
};

Span CoveredBy(int pixel, double ratio)
{
    const auto begin = std::llround(pixel * ratio * wholePixel);
    const auto end = std::max(std::llround((pixel + 1) * ratio * wholePixel), begin + 1);
    Span span;
    span.First = static_cast<int>(begin / wholePixel);
    span.Last = static_cast<int>((end - 1) / wholePixel);
    const auto endOfFirst = std::min<long long>(end, (span.First + 1LL) * wholePixel);
    span.FirstWeight = static_cast<std::uint32_t>(endOfFirst - begin);
    span.LastWeight = static_cast<std::uint32_t>(end - std::max<long long>(begin, span.Last * 1LL * wholePixel));
    return span;
}

std::vector<Span> SpansOf(int first, int count, double ratio)
{
    std::vector<Span> spans;
    spans.reserve(static_cast<std::size_t>(count));
    for (int pixel = first; pixel < first + count; ++pixel)
        spans.push_back(CoveredBy(pixel, ratio));
    return spans;
}

const QRgb* LineOf(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

QRgb Average(const QImage& drawing, const Span& across, const Span& down)
{
    std::uint32_t red = 0;
    std::uint32_t green = 0;
    std::uint32_t blue = 0;
    for (int y = down.First; y <= down.Last; ++y) {
        const QRgb* line = LineOf(drawing, y);
        const std::uint32_t downWeight = down.Weight(y);
        for (int x = across.First; x <= across.Last; ++x) {
            const std::uint32_t weight = downWeight * across.Weight(x);
            red += weight * static_cast<std::uint32_t>(qRed(line[x]));
            green += weight * static_cast<std::uint32_t>(qGreen(line[x]));
            blue += weight * static_cast<std::uint32_t>(qBlue(line[x]));
        }
    }
    const std::uint32_t total = across.Total() * down.Total();
    const auto rounded = [total](std::uint32_t sum) { return static_cast<int>((sum + total / 2) / total); };
    return qRgb(rounded(red), rounded(green), rounded(blue));
}
} // namespace

void ScaleByArea(const QImage& drawing, double ratio, const QColor& background, QPoint origin, const QRect& place,
                 QImage& target)
{
    const std::vector<Span> across = SpansOf(origin.x() + place.left(), place.width(), ratio);
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const Span down = CoveredBy(origin.y() + y, ratio);
        QRgb* line = reinterpret_cast<QRgb*>(target.scanLine(y)) + place.left();
        for (const Span& span : across) {
            const bool inside = span.Last < drawing.width() && down.Last < drawing.height();
            *line++ = inside ? Average(drawing, span, down) : background.rgb();
        }
    }
}

void ScaledPicture::SetRatio(double ratio)
{
    if (ratio == ratio_)
        return;
    ratio_ = ratio;
    strips_.clear();
}

QRect ScaledPicture::Invalidate(const QRect& drawingPixels)
{
    if (drawingPixels.isEmpty())
        return {};
    const auto shownAt = [this](int pixel) { return static_cast<int>(std::floor(pixel / ratio_)); };
    // Weights are rounded to parts of a pixel, so that a neighbour may reach in by such a part.
    const QRect shown = QRect(QPoint(shownAt(drawingPixels.left()), shownAt(drawingPixels.top())),
                              QPoint(shownAt(drawingPixels.right() + 1), shownAt(drawingPixels.bottom() + 1)))
                            .adjusted(-1, -1, 1, 1);
    for (auto& [index, strip] : strips_)
        strip.Stale |= shown.translated(0, -index * BandHeight) & strip.Pixels.rect();
    return shown;
}

const QImage& ScaledPicture::Band(int index, int width, const QImage& drawing, const QColor& background)
{
    Strip& strip = strips_[index];
    if (strip.Pixels.width() != width) {
        strip.Pixels = QImage(width, BandHeight, QImage::Format_RGB32);
        strip.Stale = strip.Pixels.rect();
    }
    if (!strip.Stale.isEmpty()) {
        ScaleByArea(drawing, ratio_, background, {0, index * BandHeight}, strip.Stale, strip.Pixels);
        pixelsScaled_ += 1LL * strip.Stale.width() * strip.Stale.height();
        strip.Stale = {};
    }
    return strip.Pixels;
}

} // namespace lineforge
