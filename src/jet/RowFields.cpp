#include "jet/RowFields.h"

#include <algorithm>

namespace lineforge::jet
{

namespace
{
// A row, from its front: how many columns it has, the fixed fields, the others; from its end: a bit for each column
// that isn't Null, how many others there are, and where they begin and the last one ends, last place first. In the
// older format a place is one byte, and a table of jumps tells from which one on the places lie 256 bytes further.
class RowBytes
{
public:
    RowBytes(std::string_view row, RowLayout layout) : row_(row), number_(layout == RowLayout::Jet3 ? 1 : 2) {}

    // False when the row is too short for what it tells of itself.
    bool ReadEnds(bool hasVariable)
    {
        if (row_.size() < number_)
            return false;
        columns_ = NumberAt(0);
        const std::size_t maskBytes = (columns_ + 7) / 8;
        if (row_.size() < number_ + maskBytes)
            return false;
        end_ = row_.size() - maskBytes;
        return !hasVariable || ReadPlaces();
    }

    bool IsNull(std::size_t column) const
    {
        return column >= columns_ || (Byte(end_ + column / 8) & 1U << column % 8) == 0;
    }

    // False when the field isn't inside of the row. A row older than its column hasn't got it.
    bool Read(const FieldPlace& field, std::optional<std::string_view>& bytes) const
    {
        bytes.reset();
        if (IsNull(field.Number) || (!field.IsFixed && field.Place + 1 >= places_.size()))
            return true;
        const std::size_t start = field.IsFixed ? number_ + field.Place : places_[field.Place];
        const std::size_t end = field.IsFixed ? start + field.Bytes : places_[field.Place + 1];
        if (start > end || end > end_)
            return false;
        bytes = row_.substr(start, end - start);
        return true;
    }

private:
    std::size_t Byte(std::size_t at) const { return static_cast<unsigned char>(row_[at]); }
    std::size_t NumberAt(std::size_t at) const { return number_ == 1 ? Byte(at) : Byte(at) | Byte(at + 1) << 8; }

    bool ReadPlaces()
    {
        if (end_ < 2 * number_)
            return false;
        const std::size_t countPlace = end_ - number_;
        places_.resize(NumberAt(countPlace) + 1);
        const std::size_t tableJumps = number_ == 1 ? (row_.size() - 1) / 256 : 0;
        if (countPlace < number_ + tableJumps + places_.size() * number_)
            return false;
        const std::size_t firstPlace = countPlace - tableJumps - number_;
        // The table has room for a jump that lies behind all places.
        const std::size_t jumps = std::min(tableJumps, (firstPlace + 1 - places_.size()) / 256);
        std::size_t passed = 0;
        for (std::size_t at = 0; at < places_.size(); ++at) {
            while (passed < jumps && Byte(countPlace - 1 - passed) == at)
                ++passed;
            places_[at] = NumberAt(firstPlace - at * number_) + passed * 256;
        }
        return true;
    }

    std::string_view row_;
    std::size_t number_; // bytes of a number
    std::size_t columns_ = 0;
    std::size_t end_ = 0; // of all but the bits
    std::vector<std::size_t> places_;
};
} // namespace

bool SplitRow(std::string_view row, RowLayout layout, std::span<const FieldPlace> places, Fields& fields)
{
    RowBytes bytes(row, layout);
    if (!bytes.ReadEnds(std::ranges::any_of(places, [](const FieldPlace& place) { return !place.IsFixed; })))
        return false;
    fields.resize(places.size());
    for (std::size_t field = 0; field < places.size(); ++field)
        if (!bytes.Read(places[field], fields[field]))
            return false;
    return true;
}

} // namespace lineforge::jet
