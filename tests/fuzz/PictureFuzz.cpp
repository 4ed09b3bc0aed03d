#include "FuzzHome.h"
#include "platform/drawing/PictureFile.h"

#include <sys/mman.h>
#include <unistd.h>

namespace lineforge::fuzz
{
namespace
{

// A file in memory that holds just these bytes.
QString FileOf(const std::uint8_t* data, std::size_t size)
{
    static const int file = memfd_create("picture", 0);
    Require(ftruncate(file, 0) == 0 && pwrite(file, data, size, 0) == static_cast<ssize_t>(size));
    return QStringLiteral("/proc/self/fd/%1").arg(file);
}

QImage Decode(const QString& file, const DecodedSize& sizeFor)
{
    try {
        return DecodePicture(file, sizeFor);
    } catch (const RuntimeError& error) {
        Require(error.Number == ErrorNumber::InvalidPicture);
        return {};
    }
}

} // namespace
} // namespace lineforge::fuzz

// Whatever the file: a picture, or no picture, on a tile as well as whole. That large ones are refused is told by their
// beginning; whole ones are decoded here only as far as they are small, for the sake of speed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lineforge::fuzz;

    constexpr int tile = 57;
    constexpr int small = 512;
    const QString file = FileOf(data, size);
    Decode(file, [](QSize) { return QSize(tile, tile); });
    Decode(file, [](QSize stored) { return stored.boundedTo({small, small}); });
    return 0;
}
