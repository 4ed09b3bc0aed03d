#pragma once

#include <QString>

namespace lineforge
{

// How a list of the map file is cut into values; pure.

// A shorter one holds no item, without a word.
inline bool CountsAsEmpty(const QString& list)
{
    constexpr qsizetype shortestList = 9; // characters
    return list.size() < shortestList;
}

// Calls store(row, column, value) for each value that a comma ends, `columns` values to a row; returns how many rows
// were filled.
template <class Store>
int ForEachValue(const QString& list, int columns, Store&& store)
{
    Q_ASSERT(columns > 0);
    int row = 0;
    int column = 0;
    qsizetype start = 0;
    for (qsizetype comma = list.indexOf(u','); comma >= 0; comma = list.indexOf(u',', start)) {
        store(row, column, list.mid(start, comma - start));
        start = comma + 1;
        if (++column == columns) {
            column = 0;
            ++row;
        }
    }
    return row;
}

} // namespace lineforge
