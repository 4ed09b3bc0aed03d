#include "platform/base/Like.h"

#include "platform/base/Text.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace lineforge
{

namespace
{
char16_t Folded(char16_t character)
{
    return QChar(character).toCaseFolded().unicode();
}

char LowerAscii(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

char UpperAscii(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - ('a' - 'A')) : letter;
}

bool IsAscii(QByteArrayView text)
{
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// The next of the two letters from there on, or the end.
const char* FindEither(const char* from, const char* end, char one, char other)
{
    const auto find = [&](char letter, const char* upTo) {
        const void* found = std::memchr(from, letter, static_cast<std::size_t>(upTo - from));
        return found ? static_cast<const char*>(found) : upTo;
    };
    const char* first = find(one, end);
    return one == other ? first : find(other, first);
}

// Both ASCII, the sought text in small letters.
bool Contains(QByteArrayView text, QByteArrayView sought)
{
    if (sought.isEmpty() || text.size() < sought.size())
        return sought.isEmpty();
    const char small = sought.front();
    const char capital = UpperAscii(small);
    const char* end = text.data() + text.size();
    const char* lastStart = end - sought.size() + 1;
    for (const char* at = text.data(); at < lastStart; ++at) {
        at = FindEither(at, lastStart, small, capital);
        if (at == lastStart)
            return false;
        if (std::equal(sought.begin() + 1, sought.end(), at + 1,
                       [](char wanted, char letter) { return wanted == LowerAscii(letter); }))
            return true;
    }
    return false;
}
} // namespace

LikePattern::LikePattern(QStringView pattern)
{
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        const QChar character = pattern[at];
        const qsizetype closing = character == u'[' ? pattern.indexOf(u']', at + 1) : -1;
        if (character == u'*') {
            parts_.push_back({Kind::Run, {}, {}, {}});
        } else if (character == u'?') {
            parts_.push_back({Kind::Any, {}, {}, {}});
        } else if (character == u'#') {
            parts_.push_back({Kind::Digit, {}, {}, {}});
        } else if (closing >= 0) {
            AddClass(pattern.sliced(at + 1, closing - at - 1));
            at = closing;
        } else {
            parts_.push_back({Kind::Literal, Folded(character.unicode()), {}, {}});
        }
    }

    const auto isLiteral = [](const Part& part) { return part.What == Kind::Literal && part.Character < 0x80; };
    isSought_ = parts_.size() >= 2 && parts_.front().What == Kind::Run && parts_.back().What == Kind::Run &&
                std::all_of(parts_.begin() + 1, parts_.end() - 1, isLiteral);
    if (isSought_)
        for (auto part = parts_.begin() + 1; part != parts_.end() - 1; ++part)
            sought_ += static_cast<char>(part->Character);
}

void LikePattern::AddClass(QStringView inside)
{
    if (inside.isEmpty())
        return;
    Part part{Kind::Class, {}, inside.size() > 1 && inside.front() == u'!', {}};
    for (qsizetype at = part.IsNegated ? 1 : 0; at < inside.size(); ++at) {
        const bool isRange = at + 2 < inside.size() && inside[at + 1] == u'-';
        const char16_t first = Folded(inside[at].unicode());
        part.Ranges.push_back({first, isRange ? Folded(inside[at + 2].unicode()) : first});
        if (isRange)
            at += 2;
    }
    parts_.push_back(std::move(part));
}

bool LikePattern::Fits(const Part& part, char16_t character)
{
    const char16_t folded = Folded(character);
    switch (part.What) {
    case Kind::Digit:
        return character >= u'0' && character <= u'9';
    case Kind::Literal:
        return folded == part.Character;
    case Kind::Class:
        return part.IsNegated != std::ranges::any_of(part.Ranges, [folded](const Range& range) {
                   return folded >= range.First && folded <= range.Last;
               });
    case Kind::Any:
    case Kind::Run:
        break;
    }
    return true;
}

// A run takes as little as it can; where the rest doesn't fit, the last run takes one more.
bool LikePattern::Matches(QStringView text) const
{
    std::size_t part = 0;
    qsizetype at = 0;
    std::optional<std::size_t> run;
    qsizetype runEnd = 0;
    while (at < text.size() || part < parts_.size()) {
        if (part < parts_.size() && parts_[part].What == Kind::Run) {
            run = part++;
            runEnd = at;
        } else if (part < parts_.size() && at < text.size() && Fits(parts_[part], text[at].unicode())) {
            ++part;
            ++at;
        } else if (run && runEnd < text.size()) {
            part = *run + 1;
            at = ++runEnd;
        } else {
            return false;
        }
    }
    return true;
}

bool LikePattern::Matches(QByteArrayView utf8) const
{
    if (isSought_ && IsAscii(utf8))
        return Contains(utf8, sought_);
    return Matches(FromUtf8(utf8));
}

} // namespace lineforge
