#pragma once

#include <QString>
#include <QStringList>

namespace lineforge
{

// Whose a home directory is: nobody else works in it, another run of this program does and has been called to the
// front, or one that can't be reached.
enum class HomeOwner { ThisRun, OtherInFront, OtherOutOfReach };

// Other programs, and other runs of this one.
class Processes
{
public:
    virtual ~Processes() = default;
    // Starts a program on a file, maximised and with the focus, and goes on beside it. Gives back its task's number.
    // Error 53 when there is no such program, 5 when it can't be started.
    virtual qint64 Shell(const QString& program, const QString& file) = 0;
    // From now on this run works in that home directory too, unless another run works there already. Where that can't
    // be told, as on some disks of other machines, nobody else does.
    [[nodiscard]] virtual HomeOwner ClaimHome(const QString&) { return HomeOwner::ThisRun; }
    // From now on it works in none that it has claimed but these.
    virtual void LeaveHomesBut(const QStringList&) {}
};

} // namespace lineforge
