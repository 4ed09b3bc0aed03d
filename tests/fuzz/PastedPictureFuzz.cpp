#include "FuzzHome.h"
#include "forms/Form1.h"
#include "map/subjects/MapClipboard.h"

#include <cstring>

namespace lineforge::fuzz
{
namespace
{

struct Told {
    std::uint16_t Width;
    std::uint16_t Height;
    std::int32_t DotsAMeter;
    std::uint8_t Format;
    std::uint8_t Ratio;
};

constexpr int longest = 512; // dots, for the sake of speed

QImage PictureOf(const Told& told, const QByteArray& dots)
{
    const auto format = static_cast<QImage::Format>(told.Format % QImage::NImageFormats);
    QImage picture(told.Width % longest, told.Height % longest, format);
    if (picture.isNull())
        return picture;
    picture.fill(0);
    picture.setDotsPerMeterX(told.DotsAMeter);
    picture.setDotsPerMeterY(told.DotsAMeter);
    picture.setDevicePixelRatio(told.Ratio);
    std::memcpy(picture.bits(), dots.constData(),
                static_cast<std::size_t>(std::min(dots.size(), picture.sizeInBytes())));
    return picture;
}

} // namespace
} // namespace lineforge::fuzz

// Whatever picture another program has put on the clipboard: it is shown on the map, whose size stays.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lineforge;
    using namespace lineforge::fuzz;

    Told told{};
    if (size < sizeof told)
        return 0;
    std::memcpy(&told, data, sizeof told);
    static FuzzHome home;
    home.Clipboard.Picture = PictureOf(told, BytesOf(data + sizeof told, size - sizeof told));
    const QSize before = home.P.Form1->Picture1.Image().size();
    PasteMapPicture(home.P.Map, *home.P.Form1, home.P.Clipboard);
    Require(home.P.Form1->Picture1.Image().size() == before);
    CopyMapPicture(home.P.Map, *home.P.Form1, home.P.Clipboard);
    return 0;
}
