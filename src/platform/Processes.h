#pragma once

#include <QString>

namespace lineforge
{

// Other programs.
class Processes
{
public:
    virtual ~Processes() = default;
    // Starts a program on a file, maximised and with the focus, and goes on beside it. Gives back its task's number.
    // Error 53 when there is no such program, 5 when it can't be started.
    virtual qint64 Shell(const QString& program, const QString& file) = 0;
};

} // namespace lineforge
