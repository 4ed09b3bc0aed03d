#include "jet/MemoReader.h"

#include <sys/stat.h>

namespace lineforge::jet
{

namespace
{
using namespace std::string_view_literals;

constexpr std::size_t headBytes = 12;
constexpr guint32 inRow = 0x80000000;
constexpr guint32 inOnePiece = 0x40000000;

guint32 NumberAt(std::string_view bytes, int place)
{
    return static_cast<guint32>(mdb_get_int32(const_cast<char*>(bytes.data()), place));
}

std::size_t SizeOf(std::FILE* file)
{
    struct stat status {
    };
    return fstat(fileno(file), &status) == 0 ? static_cast<std::size_t>(status.st_size) : 0;
}
} // namespace

MemoReader::MemoReader(MdbHandle& file) : file_(file), fileBytes_(SizeOf(file.f->stream)) {}

std::optional<std::string_view> MemoReader::Read(std::string_view field)
{
    if (field.size() < headBytes)
        return {};
    const guint32 head = NumberAt(field, 0);
    const std::size_t length = head & ~(inRow | inOnePiece);
    if (length == 0)
        return ""sv;
    if (head & inRow) {
        const std::string_view text = field.substr(headBytes);
        return length <= text.size() ? std::optional(text.substr(0, length)) : std::nullopt;
    }
    const guint32 pointer = NumberAt(field, 4);
    if (head & inOnePiece) {
        const std::optional<std::string_view> text = Piece(pointer);
        return text && length <= text->size() ? std::optional(text->substr(0, length)) : std::nullopt;
    }
    return ReadChain(pointer, length) ? std::optional<std::string_view>(chain_) : std::nullopt;
}

std::optional<std::string_view> MemoReader::Piece(guint32 pointer)
{
    void* page = nullptr;
    int start = 0;
    std::size_t length = 0;
    if (mdb_find_pg_row(&file_, static_cast<int>(pointer), &page, &start, &length) != 0)
        return {};
    const std::string_view bytes(static_cast<const char*>(page), static_cast<std::size_t>(file_.fmt->pg_size));
    const auto place = static_cast<std::size_t>(start & placeMask);
    const bool isText = bytes[0] == MDB_PAGE_DATA && bytes.substr(4, 4) == "LVAL"sv;
    if (!isText || start != (start & placeMask) || place + length > bytes.size())
        return {};
    return bytes.substr(place, length);
}

bool MemoReader::ReadChain(guint32 pointer, std::size_t length)
{
    constexpr std::size_t linkBytes = 4;
    chain_.clear();
    // A chain that comes back to itself grows beyond its length, and no true length goes beyond the file's.
    if (length > fileBytes_)
        return false;
    while (pointer != 0) {
        const std::optional<std::string_view> piece = Piece(pointer);
        if (!piece || piece->size() <= linkBytes || chain_.size() + piece->size() - linkBytes > length)
            return false;
        chain_.append(piece->substr(linkBytes));
        pointer = NumberAt(*piece, 0);
    }
    return chain_.size() == length;
}

} // namespace lineforge::jet
