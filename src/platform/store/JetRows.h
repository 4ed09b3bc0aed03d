#pragma once

#include "platform/store/JetStreamFormat.h"

#include <QByteArray>
#include <QByteArrayView>

#include <array>
#include <optional>
#include <vector>

namespace lineforge
{

// The records of an old database, as its reader has told them. The reader may have been led astray by a hostile file:
// what isn't the agreed stream to the last byte is none.
class JetRows
{
public:
    // UTF-8; a null view for Null. Good as long as the rows are.
    using Row = std::array<QByteArrayView, jetstream::fields.size()>;

    // Nothing when the bytes are any other than a whole stream, whose tally and texts are sound.
    [[nodiscard]] static std::optional<JetRows> Parse(const QByteArray& stream);

    std::size_t Count() const { return starts_.size(); }
    Row At(std::size_t row) const;
    const jetstream::Tally& Tally() const { return tally_; }

    // Whether there is less in the rows than there was in the file.
    bool HasLosses() const;

private:
    JetRows() = default;

    QByteArray stream_;
    std::vector<qsizetype> starts_;
    jetstream::Tally tally_;
};

} // namespace lineforge
