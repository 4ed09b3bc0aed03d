#pragma once

#include <QString>

#include <stdexcept>

namespace lineforge::tour
{

// A step has not come out as it should. The tour ends.
class Failure : public std::runtime_error
{
public:
    explicit Failure(const QString& text) : std::runtime_error(text.toStdString()) {}
};

inline void Expect(bool holds, const QString& what)
{
    if (!holds)
        throw Failure(u"Expected " + what);
}

} // namespace lineforge::tour
