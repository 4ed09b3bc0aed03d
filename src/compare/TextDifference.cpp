#include "compare/TextDifference.h"

#include "platform/base/Text.h"
#include "platform/base/WholeLetters.h"

#include <algorithm>

namespace lineforge
{

namespace
{
qsizetype AlikeAtStart(QStringView a, QStringView b)
{
    const qsizetype shorter = std::min(a.size(), b.size());
    qsizetype start = 0;
    while (start < shorter && SameText(a.sliced(start, 1), b.sliced(start, 1)))
        ++start;
    return SplitsLetter(a, start) || SplitsLetter(b, start) ? start - 1 : start;
}

qsizetype AlikeAtEnd(QStringView a, QStringView b, qsizetype most)
{
    qsizetype end = 0;
    while (end < most && SameText(a.chopped(end).last(1), b.chopped(end).last(1)))
        ++end;
    return SplitsLetter(a, a.size() - end) || SplitsLetter(b, b.size() - end) ? end - 1 : end;
}
} // namespace

std::pair<TextRange, TextRange> DifferenceOf(QStringView a, QStringView b)
{
    const qsizetype start = AlikeAtStart(a, b);
    const qsizetype end = AlikeAtEnd(a, b, std::min(a.size(), b.size()) - start);
    const auto rest = [start, end](QStringView text) {
        return TextRange{static_cast<int>(start), static_cast<int>(text.size() - end - start)};
    };
    return {rest(a), rest(b)};
}

} // namespace lineforge
