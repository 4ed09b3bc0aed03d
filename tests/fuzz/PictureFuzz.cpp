#include "FuzzHome.h"
#include "platform/drawing/PictureFile.h"

#include <algorithm>
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

struct PassedOver {
};

void Decode(const QString& file, const DecodedSize& sizeFor)
{
    try {
        DecodePicture(file, sizeFor);
    } catch (const RuntimeError& error) {
        Require(error.Number == ErrorNumber::InvalidPicture);
    } catch (const PassedOver&) {
        // Whatever the reader has taken hold of is given back.
    }
}

} // namespace
} // namespace lineforge::fuzz

// Whatever the file: a picture, or no picture, on a tile as well as whole. That large ones are refused is told by their
// beginning. Those that say they are fairly large take a hundred times as long to decode, so that only one in so many
// is, and never whole.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lineforge::fuzz;

    constexpr int tile = 57;
    constexpr int small = 256;
    constexpr int oneInSoMany = 256;
    const bool takesLarge = size > 0 && data[size - 1] % oneInSoMany == 0;
    const auto passOverLarge = [takesLarge](QSize stored) {
        if (!takesLarge && std::max(stored.width(), stored.height()) > small)
            throw PassedOver();
    };
    const QString file = FileOf(data, size);
    Decode(file, [&](QSize stored) {
        passOverLarge(stored);
        return QSize(tile, tile);
    });
    Decode(file, [&](QSize stored) {
        passOverLarge(stored);
        return stored.boundedTo({small, small});
    });
    return 0;
}
