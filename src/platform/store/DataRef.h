#pragma once

#include <QString>

namespace lineforge
{

// The letter of records that a comparison has appended to another branch.
inline constexpr QStringView AppendedLetter = u"Z";

// The number of a record: the letter of its branch and three digits, "A007". The field can be typed into, so that it
// may be any text; what is asked of it has an answer all the same.
class DataRef
{
public:
    explicit DataRef(QString text);
    // The number of that letter; above 999 it simply grows.
    DataRef(QStringView letter, int number);

    const QString& Text() const { return text_; }
    // Empty of an empty one.
    QString Letter() const { return text_.left(1); }
    // What stands where the digits should.
    QString Digits() const;

    // Whether that is its letter, case ignored.
    bool IsOf(QStringView letter) const;
    // Whether it is as it should be: a letter and three digits.
    bool IsWhole() const;

private:
    QString text_;
};

} // namespace lineforge
