#pragma once

#include "platform/store/JetRows.h"

#include <QtEndian>

#include <optional>
#include <vector>

namespace lineforge
{

// The bytes that the reader of old databases tells, piece by piece, so that a test can leave one out or spoil it.
namespace jetbytes
{

template <class Number>
QByteArray NumberBytes(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

inline QByteArray Beginning()
{
    return QByteArray::fromStdString(std::string(jetstream::beginning));
}

inline QByteArray Cell(const std::optional<QByteArray>& text)
{
    return text ? NumberBytes(static_cast<jetstream::CellLength>(text->size())) + *text
                : NumberBytes(jetstream::nullLength);
}

// A row whose first cells are those; the others are Null.
inline QByteArray Row(const std::vector<std::optional<QByteArray>>& cells)
{
    QByteArray bytes(1, jetstream::rowMark);
    for (std::size_t field = 0; field < jetstream::fields.size(); ++field)
        bytes += Cell(field < cells.size() ? cells[field] : std::nullopt);
    return bytes;
}

inline QByteArray TallyBytes(const jetstream::Tally& tally)
{
    return NumberBytes(tally.Rows) + NumberBytes(tally.Stated) + NumberBytes(tally.BadRows) +
           NumberBytes(tally.BadCells);
}

inline QByteArray End(const jetstream::Tally& tally)
{
    return jetstream::endMark + TallyBytes(tally) + QByteArray::fromStdString(std::string(jetstream::end));
}

// A whole stream in which nothing is lost.
inline QByteArray Stream(const std::vector<std::vector<std::optional<QByteArray>>>& rows)
{
    QByteArray bytes = Beginning();
    for (const auto& row : rows)
        bytes += Row(row);
    return bytes + End({rows.size(), rows.size(), 0, 0});
}

} // namespace jetbytes

} // namespace lineforge
