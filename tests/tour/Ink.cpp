#include "Ink.h"

#include <QHash>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace lineforge::tour
{

namespace
{
QHash<QRgb, int> CountPixels(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    return counts;
}

QRgb CommonestColour(const QImage& picture)
{
    const QHash<QRgb, int> counts = CountPixels(picture);
    return std::max_element(counts.keyValueBegin(), counts.keyValueEnd(),
                            [](const auto& a, const auto& b) { return a.second < b.second; })
        ->first;
}

template <class IsInked>
std::vector<Stretch> Stretches(int length, int gap, IsInked&& isInked)
{
    std::vector<Stretch> found;
    for (int at = 0; at < length; ++at) {
        if (!isInked(at))
            continue;
        if (!found.empty() && at - found.back().Last <= gap + 1)
            found.back().Last = at;
        else
            found.push_back({at, at});
    }
    return found;
}
} // namespace

std::vector<Stretch> InkedRows(const QImage& picture, int gap)
{
    const QRgb paper = CommonestColour(picture);
    return Stretches(picture.height(), gap, [&](int y) {
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) != paper)
                return true;
        return false;
    });
}

std::vector<Stretch> InkedColumns(const QImage& picture, int gap)
{
    return InkedRows(picture.transformed(QTransform(0, 1, 1, 0, 0, 0)), gap);
}

bool IsOneColour(const QImage& picture)
{
    return CountColours(picture) == 1;
}

int CountColours(const QImage& picture)
{
    return static_cast<int>(CountPixels(picture).size());
}

int DarkestGrey(const QImage& picture)
{
    int darkest = 255;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            darkest = std::min(darkest, qGray(picture.pixel(x, y)));
    return darkest;
}

bool IsTintOf(QRgb pixel, QColor colour)
{
    constexpr double faintest = 0.35;
    constexpr double tolerance = 20;
    const double taken[] = {255.0 - qRed(pixel), 255.0 - qGreen(pixel), 255.0 - qBlue(pixel)};
    const double whole[] = {255.0 - colour.red(), 255.0 - colour.green(), 255.0 - colour.blue()};
    double product = 0;
    double square = 0;
    for (int channel = 0; channel < 3; ++channel) {
        product += taken[channel] * whole[channel];
        square += whole[channel] * whole[channel];
    }
    const double strength = square > 0 ? product / square : 0;
    bool isTint = strength >= faintest;
    for (int channel = 0; channel < 3; ++channel)
        isTint = isTint && std::abs(taken[channel] - strength * whole[channel]) <= tolerance;
    return isTint;
}

double ShareOfTintedColumns(const QImage& picture, QColor colour)
{
    int tinted = 0;
    for (int x = 0; x < picture.width(); ++x)
        for (int y = 0; y < picture.height(); ++y)
            if (IsTintOf(picture.pixel(x, y), colour)) {
                ++tinted;
                break;
            }
    return static_cast<double>(tinted) / picture.width();
}

bool HoldsBlackLetters(const QImage& picture)
{
    constexpr int darkEnough = 110;
    constexpr int nearlyGrey = 30;
    constexpr int fewest = 12;
    int dark = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel(picture.pixel(x, y));
            const int spread = std::max({pixel.red(), pixel.green(), pixel.blue()}) -
                               std::min({pixel.red(), pixel.green(), pixel.blue()});
            dark += qGray(pixel.rgb()) <= darkEnough && spread <= nearlyGrey ? 1 : 0;
        }
    return dark >= fewest;
}

} // namespace lineforge::tour
