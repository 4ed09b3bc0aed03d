#pragma once

#include "map/MapModel.h"

#include <cmath>

// What a cell of the model's arrays counts as.
namespace lineforge
{

inline bool IsSame(const QString& one, const QString& other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

// Nothing stored is 0; a text that is no number is none.
inline std::optional<int> NumberIn(const QString& cell)
{
    if (cell.isNull())
        return 0;
    bool isNumber = false;
    const double number = cell.trimmed().toDouble(&isNumber);
    if (!isNumber || std::abs(number) > 2e9)
        return {};
    return static_cast<int>(std::nearbyint(number));
}

inline bool IsFree(const MapModel::Cells& row)
{
    return NumberIn(row[0]) == 0;
}

// A box that stands anywhere.
inline bool IsPlaced(const MapModel::Cells& row)
{
    // The marker stands further in.
    const auto fits = [](const QString& cell, int marker) {
        const std::optional<int> number = NumberIn(cell);
        return number && *number >= -32768 && *number <= 32767 - marker;
    };
    return !IsFree(row) && fits(row[0], 307 - 60) && fits(row[1], 108 - 60);
}

// Strictly, whichever of the two is the greater.
inline bool IsBetween(int value, int one, int other)
{
    return (value > one && value < other) || (value > other && value < one);
}

inline QString Filed(QString forename)
{
    for (const QChar breaking : QStringView(u",[\r\n"))
        forename.remove(breaking);
    return forename;
}

inline MapModel::Cells& At(std::array<MapModel::Cells, MapModel::LastRow + 1>& rows, int row)
{
    return rows.at(static_cast<std::size_t>(row));
}

inline MapModel::Line& At(std::array<MapModel::Line, MapModel::LastRow + 1>& rows, int row)
{
    return rows.at(static_cast<std::size_t>(row));
}

} // namespace lineforge
