#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

// What the reader of old databases, a process of its own, tells the program on its standard output:
//
//     the beginning; a row mark and the cells of that row, again and again; the end mark and the tally; the end.
//
// A cell is its length in bytes and that much UTF-8, or the length of Null alone. All numbers are little endian.
namespace lineforge::jetstream
{

inline constexpr std::string_view beginning = "Tree99 rows 1\n";
inline constexpr std::string_view end = "end of rows\n";
inline constexpr char rowMark = 'R';
inline constexpr char endMark = 'E';

using CellLength = std::uint32_t;
inline constexpr CellLength nullLength = 0xFFFFFFFF;

// Far more than the records of a branch take; a file that claims more is hostile.
inline constexpr std::size_t mostBytes = 256U << 20;

// The cells of a row, in this order, which is that of the table.
inline constexpr std::array<std::string_view, 25> fields{"File",
                                                         "Surname",
                                                         "Forename",
                                                         "BirthDate",
                                                         "BirthPlace",
                                                         "Gender",
                                                         "Nationality",
                                                         "Spouse",
                                                         "SpouseRec",
                                                         "FatherRec",
                                                         "MotherRec",
                                                         "Children",
                                                         "PrevChildren",
                                                         "Partner",
                                                         "Maiden",
                                                         "Wedding",
                                                         "WedDate",
                                                         "Education",
                                                         "Profession",
                                                         "Deceased",
                                                         "Notes",
                                                         "Medical",
                                                         "BirthCertificate",
                                                         "MarriageCertificate",
                                                         "DeathCertificate"};

// What became of a table. Each number takes eight bytes of the stream, in this order.
struct Tally {
    std::uint64_t Rows = 0;     // in the stream
    std::uint64_t Stated = 0;   // by the table itself; 0 in a file that was never closed, too
    std::uint64_t BadRows = 0;  // seen, but not to be read
    std::uint64_t BadCells = 0; // Null in the stream, or with characters that can't be told
};

// How the process ends. Only after `Whole` is there a stream to be read.
enum class Outcome {
    Whole = 0,
    WrongCall = 2,
    NotReadable = 3,
    NoTable = 4,
    NewerFormat = 5,
};

} // namespace lineforge::jetstream
