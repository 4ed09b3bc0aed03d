#include "platform/drawing/Surface.h"

#include "platform/base/RuntimeError.h"

#include <array>

namespace lineforge
{

Colour QbColor(int number)
{
    static constexpr std::array<Colour, 16> palette{
        Rgb(0, 0, 0),     Rgb(0, 0, 128),     Rgb(0, 128, 0),     Rgb(0, 128, 128),  Rgb(128, 0, 0), Rgb(128, 0, 128),
        Rgb(128, 128, 0), Rgb(192, 192, 192), Rgb(128, 128, 128), Rgb(0, 0, 255),    Rgb(0, 255, 0), Rgb(0, 255, 255),
        Rgb(255, 0, 0),   Rgb(255, 0, 255),   Rgb(255, 255, 0),   Rgb(255, 255, 255)};
    if (number < 0 || number >= static_cast<int>(palette.size()))
        throw RuntimeError(ErrorNumber::InvalidCall, QString::number(number));
    return palette[static_cast<std::size_t>(number)];
}

QColor ToQColor(Colour colour)
{
    return QColor::fromRgb(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                           static_cast<int>(colour >> 16 & 0xFF));
}

} // namespace lineforge
