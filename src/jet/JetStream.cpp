#include "jet/JetStream.h"

#include <initializer_list>

namespace lineforge::jet
{

namespace
{
constexpr std::size_t blockBytes = 1U << 16;

class Stream
{
public:
    explicit Stream(std::ostream& output) : output_(output) { block_ = jetstream::beginning; }

    void Put(const Row& row)
    {
        block_ += jetstream::rowMark;
        for (const Cell& cell : row) {
            PutNumber(cell.IsNull ? jetstream::nullLength : static_cast<jetstream::CellLength>(cell.Text.size()));
            block_ += cell.Text;
        }
        if (block_.size() >= blockBytes)
            Flush();
    }

    void End(const jetstream::Tally& tally)
    {
        block_ += jetstream::endMark;
        for (const std::uint64_t number : {tally.Rows, tally.Stated, tally.BadRows, tally.BadCells})
            PutNumber(number);
        block_ += jetstream::end;
        Flush();
        output_.flush();
        if (!output_)
            throw Refused{jetstream::Outcome::NotReadable};
    }

private:
    template <class Number>
    void PutNumber(Number number)
    {
        for (std::size_t byte = 0; byte < sizeof number; ++byte)
            block_ += static_cast<char>(number >> (8 * byte) & 0xFF);
    }

    void Flush()
    {
        written_ += block_.size();
        if (written_ > jetstream::mostBytes)
            throw Refused{jetstream::Outcome::NotReadable};
        output_.write(block_.data(), static_cast<std::streamsize>(block_.size()));
        block_.clear();
    }

    std::ostream& output_;
    std::string block_;
    std::size_t written_ = 0;
};
} // namespace

jetstream::Outcome WriteRecords(const std::string& path, std::ostream& output)
{
    try {
        JetFile file(path);
        Stream stream(output);
        stream.End(file.ReadRows([&](const Row& row) { stream.Put(row); }));
        return jetstream::Outcome::Whole;
    } catch (const Refused& refused) {
        return refused.Why;
    }
}

} // namespace lineforge::jet
