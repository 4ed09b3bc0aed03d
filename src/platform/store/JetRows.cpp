#include "platform/store/JetRows.h"

#include <QUtf8StringView>
#include <QtEndian>

namespace lineforge
{

namespace
{
QByteArrayView BytesOf(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

// Takes a stream apart from its front. Each step gives back nothing, or false, when the next bytes are something else.
class Scanner
{
public:
    explicit Scanner(QByteArrayView bytes) : left_(bytes) {}

    bool Take(QByteArrayView expected)
    {
        if (!left_.startsWith(expected))
            return false;
        left_ = left_.sliced(expected.size());
        return true;
    }

    template <class Number>
    std::optional<Number> TakeNumber()
    {
        const std::optional<QByteArrayView> bytes = TakeBytes(sizeof(Number));
        return bytes ? std::optional(qFromLittleEndian<Number>(bytes->data())) : std::nullopt;
    }

    // A null view inside is a cell that holds Null.
    std::optional<QByteArrayView> TakeCell()
    {
        const auto length = TakeNumber<jetstream::CellLength>();
        if (!length)
            return {};
        return *length == jetstream::nullLength ? QByteArrayView() : TakeBytes(*length);
    }

    qsizetype Left() const { return left_.size(); }

private:
    std::optional<QByteArrayView> TakeBytes(qsizetype count)
    {
        if (count > left_.size())
            return {};
        const QByteArrayView taken = left_.first(count);
        left_ = left_.sliced(count);
        return taken;
    }

    QByteArrayView left_;
};

bool TakeRow(Scanner& scanner)
{
    for (std::size_t field = 0; field < jetstream::fields.size(); ++field) {
        const std::optional<QByteArrayView> cell = scanner.TakeCell();
        if (!cell || !QUtf8StringView(*cell).isValidUtf8())
            return false;
    }
    return true;
}

bool TakeTally(Scanner& scanner, jetstream::Tally& tally)
{
    for (std::uint64_t* number : {&tally.Rows, &tally.Stated, &tally.BadRows, &tally.BadCells}) {
        const auto taken = scanner.TakeNumber<std::uint64_t>();
        if (!taken)
            return false;
        *number = *taken;
    }
    return true;
}
} // namespace

std::optional<JetRows> JetRows::Parse(const QByteArray& stream)
{
    JetRows rows;
    rows.stream_ = stream;
    Scanner scanner(rows.stream_);
    if (!scanner.Take(BytesOf(jetstream::beginning)))
        return {};
    while (scanner.Take({&jetstream::rowMark, 1})) {
        rows.starts_.push_back(rows.stream_.size() - scanner.Left());
        if (!TakeRow(scanner))
            return {};
    }
    const bool isWhole = scanner.Take({&jetstream::endMark, 1}) && TakeTally(scanner, rows.tally_) &&
                         scanner.Take(BytesOf(jetstream::end)) && scanner.Left() == 0;
    if (!isWhole || rows.tally_.Rows != rows.starts_.size())
        return {};
    return rows;
}

JetRows::Row JetRows::At(std::size_t row) const
{
    Scanner scanner(QByteArrayView(stream_).sliced(starts_[row]));
    Row cells;
    for (QByteArrayView& cell : cells)
        cell = *scanner.TakeCell();
    return cells;
}

bool JetRows::HasLosses() const
{
    const bool differs = tally_.Stated != 0 && tally_.Rows != tally_.Stated;
    return differs || tally_.BadRows > 0 || tally_.BadCells > 0;
}

} // namespace lineforge
