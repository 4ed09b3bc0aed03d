#pragma once

#include "jet/Library.h"

#include <optional>
#include <string>
#include <string_view>

namespace lineforge::jet
{

// Collects the long texts, which stand in their row, in one piece elsewhere, or in a chain of pieces.
class MemoReader
{
public:
    explicit MemoReader(MdbHandle& file);

    // The bytes of the text whose field is given, good until the next one is read; nothing when they aren't all there.
    // The page at hand stays.
    std::optional<std::string_view> Read(std::string_view field);

private:
    std::optional<std::string_view> Piece(guint32 pointer);
    bool ReadChain(guint32 pointer, std::size_t length);

    MdbHandle& file_;
    std::size_t fileBytes_;
    std::string chain_;
};

} // namespace lineforge::jet
