#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace lineforge
{

// Conversions of a text or a fraction to a whole number, as the platform makes them: blanks around it are allowed, a
// fraction is rounded to the nearest, halves to even. Error 13 for a text that is no number, 6 for one out of range.
std::int16_t ToInteger(QStringView text);
std::int32_t ToLong(QStringView text);

// The number that a text holds; error 13 when it holds none, 6 when it is too large for any.
double ToNumber(QStringView text);

// The same, or nothing when it holds none.
std::optional<double> NumberIn(QStringView text);

// A 16-bit quantity: a value outside -32768 to 32767 is error 6 at the moment it is stored.
class Integer16
{
public:
    constexpr Integer16() = default;
    Integer16(int value) : value_(Narrowed(value)) {}
    Integer16& operator=(int value)
    {
        value_ = Narrowed(value);
        return *this;
    }
    Integer16& operator+=(int value) { return *this = value_ + value; }
    Integer16& operator-=(int value) { return *this = value_ - value; }
    constexpr operator int() const { return value_; }

private:
    static std::int16_t Narrowed(int value);

    std::int16_t value_ = 0;
};

} // namespace lineforge
