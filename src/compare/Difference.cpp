#include "compare/Difference.h"

#include <algorithm>

namespace lineforge
{

namespace
{
bool IsAlike(QChar a, QChar b)
{
    return a.toCaseFolded() == b.toCaseFolded();
}
} // namespace

std::pair<TextRange, TextRange> DifferenceOf(QStringView a, QStringView b)
{
    const qsizetype shorter = std::min(a.size(), b.size());
    qsizetype start = 0;
    while (start < shorter && IsAlike(a[start], b[start]))
        ++start;
    qsizetype end = 0;
    while (end < shorter - start && IsAlike(a[a.size() - 1 - end], b[b.size() - 1 - end]))
        ++end;
    const auto rest = [start, end](QStringView text) {
        return TextRange{static_cast<int>(start), static_cast<int>(text.size() - end - start)};
    };
    return {rest(a), rest(b)};
}

} // namespace lineforge
