#include "gedcom/writer/LineageLines.h"

#include <array>
#include <span>

namespace lineforge
{

using namespace LineageColumn;

namespace
{
using Row = LineageState::Row;

struct Cell {
    QStringView Label;
    int Column;
};

constexpr std::array<Cell, 10> individualLine{{{u"Indi ", Indi},
                                               {u" Spse ", Spse},
                                               {u" Pa ", Pa},
                                               {u" Ma ", Ma},
                                               {u" Sib1 ", Sib1},
                                               {u" Sib2 ", Sib1 + 1},
                                               {u" Sib3 ", Sib1 + 2},
                                               {u" Sib4 ", Sib4},
                                               {u" Sib5 ", Sib4 + 1},
                                               {u" Sib6 ", Sib4 + 2}}};

constexpr std::array<Cell, 11> listingLine{{{u"", Fam},
                                            {u"Ind:", Indi},
                                            {u" Sps:", Spse},
                                            {u" Pa:", Pa},
                                            {u" Ma:", Ma},
                                            {u" S1:", Sib1},
                                            {u" S2:", Sib1 + 1},
                                            {u" S3:", Sib1 + 2},
                                            {u" S4:", Sib4},
                                            {u" S5:", Sib4 + 1},
                                            {u" S6:", Sib4 + 2}}};

// The last three of the offspring are those of `tail`.
QString LineOf(std::span<const Cell> cells, const Row& row, const Row& tail)
{
    QString line;
    for (const Cell& cell : cells)
        line += cell.Label + (cell.Column < Sib4 ? row : tail)[cell.Column];
    return line;
}
} // namespace

QString IndividualLine(const LineageState::Row& row, const LineageState::Row& tail)
{
    return LineOf(individualLine, row, tail);
}

QString ListingLine(const LineageState::Row& row)
{
    return LineOf(listingLine, row, row);
}

} // namespace lineforge
