#include "qt/style/Scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lineforge
{

namespace
{
constexpr int twipsPerPoint = 20;
constexpr int smallestFontDots = 10;
constexpr std::array<int, 12> finestFirst{3, 4, 5, 6, 8, 10, 12, designTwipsAPixel, 18, 20, 24, 30};

// A menu bar isn't made yet when the scale is chosen; this is what the usual styles give it.
int MenuBarPixels(const Scale& scale)
{
    return scale.FontPixels(8) * 5 / 4 + 6;
}
} // namespace

int Scale::ToPixels(int twips) const
{
    return static_cast<int>(std::lround(static_cast<double>(twips) / twipsAPixel_));
}

QRect Scale::ToPixels(Rectangle twips) const
{
    const QPoint topLeft(ToPixels(twips.Left), ToPixels(twips.Top));
    const QPoint behind(ToPixels(twips.Left + twips.Width), ToPixels(twips.Top + twips.Height));
    return {topLeft, QSize(behind.x() - topLeft.x(), behind.y() - topLeft.y())};
}

int Scale::FontPixels(double points) const
{
    const int smallest = static_cast<int>(std::ceil(smallestFontDots / dots_));
    return std::max(smallest, static_cast<int>(std::lround(points * twipsPerPoint / twipsAPixel_)));
}

Scale FittingScale(Size client, QSize available, int titlePixels, double dots)
{
    // The design's own size is readable on any screen, a smaller one where a pixel has more than one dot.
    const double coarsest = designTwipsAPixel * std::max(1.0, dots);
    Scale scale(designTwipsAPixel, dots);
    for (const int twipsAPixel : finestFirst) {
        if (twipsAPixel > coarsest)
            break;
        scale = Scale(twipsAPixel, dots);
        const QSize window = scale.ToPixels(client) + QSize(0, MenuBarPixels(scale) + titlePixels);
        if (window.width() <= available.width() && window.height() <= available.height())
            break;
    }
    return scale;
}

} // namespace lineforge
