#include "platform/store/JetRows.h"

#include <QtEndian>

#include <cstdint>
#include <cstdlib>

namespace
{
using namespace lineforge;

template <class Number>
void Append(QByteArray& stream, Number number)
{
    const Number bytes = qToLittleEndian(number);
    stream.append(reinterpret_cast<const char*>(&bytes), sizeof bytes);
}

void Append(QByteArray& stream, std::string_view text)
{
    stream.append(text.data(), static_cast<qsizetype>(text.size()));
}

void AppendRow(QByteArray& stream, const JetRows::Row& row)
{
    stream += jetstream::rowMark;
    for (const QByteArrayView cell : row) {
        Append(stream, cell.isNull() ? jetstream::nullLength : static_cast<jetstream::CellLength>(cell.size()));
        stream += cell;
    }
}

QByteArray StreamOf(const JetRows& rows)
{
    QByteArray stream;
    Append(stream, jetstream::beginning);
    for (std::size_t row = 0; row < rows.Count(); ++row)
        AppendRow(stream, rows.At(row));
    stream += jetstream::endMark;
    const jetstream::Tally& tally = rows.Tally();
    for (const std::uint64_t number : {tally.Rows, tally.Stated, tally.BadRows, tally.BadCells})
        Append(stream, number);
    Append(stream, jetstream::end);
    return stream;
}
} // namespace

// Whatever the reader of old databases tells: it is refused, or taken to the last byte.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray stream(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::optional<JetRows> rows = JetRows::Parse(stream);
    if (rows && StreamOf(*rows) != stream)
        std::abort();
    return 0;
}
