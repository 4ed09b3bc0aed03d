#include "jet/JetStream.h"
#include "platform/store/JetRows.h"

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <sys/mman.h>
#include <unistd.h>

namespace
{
void Require(bool holds)
{
    if (!holds)
        std::abort();
}

// A file in memory that holds just these bytes.
std::string FileOf(const std::uint8_t* data, std::size_t size)
{
    static const int file = memfd_create("database", 0);
    Require(ftruncate(file, 0) == 0 && pwrite(file, data, size, 0) == static_cast<ssize_t>(size));
    return "/proc/self/fd/" + std::to_string(file);
}
} // namespace

// Whatever the bytes: an answer, and with `Whole` a stream that the program accepts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lineforge;

    std::ostringstream stream;
    const jetstream::Outcome outcome = jet::WriteRecords(FileOf(data, size), stream);
    Require(outcome != jetstream::Outcome::Whole || JetRows::Parse(QByteArray::fromStdString(stream.str())));
    return 0;
}
