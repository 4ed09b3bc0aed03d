#include "platform/base/Number.h"

#include "platform/base/RuntimeError.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lineforge
{

namespace
{
// Of a text that may be anything: its beginning, with what can't be shown taken out.
QString Quoted(QStringView text)
{
    constexpr qsizetype shown = 40;
    QString quoted = u'\'' + text.first(std::min(shown, text.size())) + u'\'';
    quoted.removeIf([](QChar character) { return !character.isPrint(); });
    return text.size() > shown ? QString(quoted + u" ...") : quoted;
}

template <class Whole>
Whole ToWhole(QStringView text)
{
    const double rounded = std::nearbyint(ToNumber(text));
    if (rounded < std::numeric_limits<Whole>::min() || rounded > std::numeric_limits<Whole>::max())
        throw RuntimeError(ErrorNumber::Overflow, Quoted(text));
    return static_cast<Whole>(rounded);
}
} // namespace

double ToNumber(QStringView text)
{
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    if (!isNumber && std::isinf(number))
        throw RuntimeError(ErrorNumber::Overflow, Quoted(text));
    // "nan" and "inf" are words here, not numbers.
    if (!isNumber || !std::isfinite(number))
        throw RuntimeError(ErrorNumber::TypeMismatch, Quoted(text));
    return number;
}

std::int16_t ToInteger(QStringView text)
{
    return ToWhole<std::int16_t>(text);
}

std::int32_t ToLong(QStringView text)
{
    return ToWhole<std::int32_t>(text);
}

std::optional<double> NumberIn(QStringView text)
{
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    // "nan" and "inf" are words here, not numbers.
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::int16_t Integer16::Narrowed(int value)
{
    if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max())
        throw RuntimeError(ErrorNumber::Overflow, QString::number(value));
    return static_cast<std::int16_t>(value);
}

} // namespace lineforge
