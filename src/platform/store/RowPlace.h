#pragma once

#include <cstdint>

namespace lineforge
{

// A row that is remembered. Its number holds in one numbering of its table, from which `TableRows` leads on.
struct RowMark {
    std::int64_t Row = 0;
    std::uint32_t Table = 0;
    std::uint32_t Numbering = 0;
    friend bool operator==(const RowMark&, const RowMark&) = default;
};

// What another program has done to a row. `Changed` also where it can't be told from its twins any more.
enum class RowFate { Same, Changed, Gone };

// Where a row stands now: on its number, or, `Gone`, in the gap that it has left.
struct RowPlace {
    std::int64_t After = 0;  // the next row is the first of a higher number
    std::int64_t Before = 0; // the one before it the last of a lower number
    RowFate Fate = RowFate::Same;
};

} // namespace lineforge
