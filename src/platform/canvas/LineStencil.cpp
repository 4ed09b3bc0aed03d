#include "platform/canvas/LineStencil.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace lineforge
{

namespace
{
constexpr QRgb unset = 0xFF000000;
constexpr QRgb set = 0xFFFFFFFF;

struct Stretch {
    QRgb* Pixels;
    int Length;
};

// The pixels of an image that are about a line, row by row.
std::vector<Stretch> StretchesAbout(const QLine& line, int reach, QImage& image)
{
    const int upper = std::min(line.y1(), line.y2());
    const int lower = std::max(line.y1(), line.y2());
    const double slope = line.dy() == 0 ? 0 : static_cast<double>(line.dx()) / line.dy();
    const auto columnAt = [&](int y) { return line.x1() + slope * (std::clamp(y, upper, lower) - line.y1()); };

    const int top = std::max(upper - reach, 0);
    const int bottom = std::min(lower + reach, image.height() - 1);
    uchar* const bits = image.bits();
    std::vector<Stretch> stretches;
    stretches.reserve(static_cast<std::size_t>(std::max(bottom - top + 1, 0)));
    for (int y = top; y <= bottom; ++y) {
        const auto [left, right] = line.dy() == 0 ? std::minmax<double>({1. * line.x1(), 1. * line.x2()})
                                                  : std::minmax({columnAt(y - reach), columnAt(y + reach)});
        const int from = std::max(static_cast<int>(std::floor(left)) - reach, 0);
        const int to = std::min(static_cast<int>(std::ceil(right)) + reach, image.width() - 1);
        if (from <= to)
            stretches.push_back({reinterpret_cast<QRgb*>(bits + y * image.bytesPerLine()) + from, to - from + 1});
    }
    return stretches;
}
} // namespace

void TurnLine(QImage& image, const QLine& line, int reach, QRgb bits, const std::function<void()>& draw)
{
    const std::vector<Stretch> stretches = StretchesAbout(line, reach, image);
    std::vector<QRgb> before;
    for (const auto [pixels, length] : stretches) {
        before.insert(before.end(), pixels, pixels + length);
        std::fill_n(pixels, length, unset);
    }
    draw();
    const QRgb* old = before.data();
    for (const auto [pixels, length] : stretches) {
        for (int at = 0; at < length; ++at)
            pixels[at] = old[at] ^ (pixels[at] == set ? bits : 0);
        old += length;
    }
}

} // namespace lineforge
