#include "jet/JetText.h"

#include "jet/Refused.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace lineforge::jet
{

namespace
{
using namespace std::string_view_literals;

constexpr auto noCharacter = "\xEF\xBF\xBD"sv;
constexpr auto compressedMark = "\xFF\xFE"sv;
constexpr std::size_t utf16Unit = 2;
const iconv_t noConverter = reinterpret_cast<iconv_t>(-1);

bool IsAscii(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return static_cast<signed char>(c) >= 0; });
}

// Characters of one byte and of two take turns, with a zero in between. The last one may lack its second byte.
std::string_view Expand(std::string_view compressed, std::string& expanded)
{
    expanded.clear();
    bool isSingle = true;
    for (std::size_t at = 0; at < compressed.size();) {
        const std::size_t taken = compressed[at] == '\0' || isSingle ? 1 : utf16Unit;
        if (compressed[at] == '\0')
            isSingle = !isSingle;
        else if (isSingle)
            expanded.append({compressed[at], '\0'});
        else
            expanded.append(compressed.substr(at, taken));
        at += taken;
    }
    return expanded;
}
} // namespace

JetText JetText::InCodePage(unsigned codePage)
{
    constexpr unsigned western = 1252;
    const std::string name = "CP" + std::to_string(codePage == 0 ? western : codePage);
    return {name.c_str(), 1};
}

JetText JetText::InUnicode()
{
    return {"UTF-16LE", utf16Unit};
}

JetText::JetText(const char* encoding, std::size_t unit) : converter_(iconv_open("UTF-8", encoding)), unit_(unit)
{
    if (converter_ == noConverter)
        throw Refused{jetstream::Outcome::NotReadable};
}

JetText::JetText(JetText&& other) noexcept
    : converter_(std::exchange(other.converter_, noConverter)), unit_(other.unit_)
{
}

JetText::~JetText()
{
    if (converter_ != noConverter)
        iconv_close(converter_);
}

bool JetText::Append(std::string_view stored, std::string& utf8)
{
    if (unit_ == utf16Unit) {
        if (!stored.starts_with(compressedMark))
            return Convert(stored, utf8);
        stored.remove_prefix(compressedMark.size());
        if (!IsAscii(stored) || stored.find('\0') != stored.npos)
            return Convert(Expand(stored, expanded_), utf8);
    } else if (!IsAscii(stored)) {
        return Convert(stored, utf8);
    }
    utf8.append(stored);
    return true;
}

bool JetText::Convert(std::string_view stored, std::string& utf8)
{
    constexpr std::size_t mostBytesOfCharacter = 4;
    bool isWhole = true;
    auto* input = const_cast<char*>(stored.data());
    std::size_t left = stored.size();
    while (left > 0) {
        const std::size_t before = utf8.size();
        utf8.resize(before + (left / unit_ + 1) * mostBytesOfCharacter);
        char* output = utf8.data() + before;
        std::size_t room = utf8.size() - before;
        const std::size_t result = iconv(converter_, &input, &left, &output, &room);
        utf8.resize(utf8.size() - room);
        if (result != static_cast<std::size_t>(-1) || errno == E2BIG)
            continue;
        isWhole = false;
        utf8.append(noCharacter);
        const std::size_t passed = std::min(unit_, left);
        input += passed;
        left -= passed;
    }
    Flush(utf8);
    return isWhole;
}

// Where a mark may follow a letter the converter holds the letter back, which belongs to this text and not to the next.
void JetText::Flush(std::string& utf8)
{
    constexpr std::size_t mostBytesHeldBack = 16;
    const std::size_t before = utf8.size();
    utf8.resize(before + mostBytesHeldBack);
    char* output = utf8.data() + before;
    std::size_t room = mostBytesHeldBack;
    iconv(converter_, nullptr, nullptr, &output, &room);
    utf8.resize(utf8.size() - room);
}

} // namespace lineforge::jet
