#pragma once

#include <cstddef>
#include <string_view>

namespace lineforge
{

// What wrote a database file, as far as its beginning tells.
enum class DatabaseFormat {
    Ours,
    Jet3,    // Access 97
    Jet4,    // Access 2000 to 2003
    Newer,   // of the same family, and later than these
    Unknown, // nothing of all this, an empty file among them
};

// How many bytes of a file tell its format.
inline constexpr std::size_t databaseFormatBytes = 24;

constexpr DatabaseFormat FormatOf(std::string_view beginning)
{
    using namespace std::string_view_literals;
    constexpr std::size_t versionPlace = 0x14;
    constexpr unsigned char jet3 = 0;
    constexpr unsigned char jet4 = 1;

    if (beginning.starts_with("SQLite format 3\0"sv))
        return DatabaseFormat::Ours;
    if (beginning.starts_with("\0\1\0\0Standard ACE DB\0"sv))
        return DatabaseFormat::Newer;
    if (!beginning.starts_with("\0\1\0\0Standard Jet DB\0"sv) || beginning.size() <= versionPlace)
        return DatabaseFormat::Unknown;
    switch (static_cast<unsigned char>(beginning[versionPlace])) {
    case jet3:
        return DatabaseFormat::Jet3;
    case jet4:
        return DatabaseFormat::Jet4;
    default:
        return DatabaseFormat::Newer;
    }
}

// Whether a database of ours, by the same bytes of it, has its newest changes in a file beside it.
constexpr bool KeepsChangesBeside(std::string_view beginning)
{
    constexpr std::size_t versionsPlace = 18; // of the two that may write and read the file
    return beginning.size() > versionsPlace && beginning.substr(versionsPlace, 2).find('\2') != std::string_view::npos;
}

} // namespace lineforge
