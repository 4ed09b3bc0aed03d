#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace lineforge::jet
{

// Where a column's field stands in a row.
struct FieldPlace {
    std::size_t Number; // of the column, by which the row tells whether it is Null
    bool IsFixed;
    std::size_t Place; // fixed: the byte behind the row's head; else: its turn among those without a fixed place
    std::size_t Bytes; // fixed only
};

// The bytes of a row's fields, nothing for Null.
using Fields = std::vector<std::optional<std::string_view>>;

// How rows are laid out, which differs between the two formats.
enum class RowLayout { Jet3, Jet4 };

// Takes a row's bytes apart, field by field as the places tell. Nothing is taken from beyond the row: false when it
// leads there.
[[nodiscard]] bool SplitRow(std::string_view row, RowLayout layout, std::span<const FieldPlace> places, Fields& fields);

} // namespace lineforge::jet
