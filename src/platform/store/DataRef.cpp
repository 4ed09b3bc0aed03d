#include "platform/store/DataRef.h"

#include "platform/base/Text.h"

#include <algorithm>
#include <utility>

namespace lineforge
{

namespace
{
constexpr int digits = 3;

bool IsDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool IsLetter(QChar character)
{
    return character.toUpper() >= u'A' && character.toUpper() <= u'Z';
}
} // namespace

DataRef::DataRef(QString text) : text_(std::move(text)) {}

DataRef::DataRef(QStringView letter, int number) : text_(letter + QString::number(number).rightJustified(digits, u'0'))
{
}

QString DataRef::Digits() const
{
    return text_.right(digits);
}

bool DataRef::IsOf(QStringView letter) const
{
    return SameText(Letter(), letter);
}

bool DataRef::IsWhole() const
{
    return text_.size() == 1 + digits && IsLetter(text_.front()) &&
           std::ranges::all_of(QStringView(text_).sliced(1), IsDigit);
}

} // namespace lineforge
