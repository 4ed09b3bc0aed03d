#pragma once

#include <QLocalServer>
#include <QString>

namespace lineforge
{

// A home directory in which one run of the program works, told to all others of this machine. The lock is on the
// directory itself: it leaves no file, and goes with the process, however that ends.
class HomeClaim
{
public:
    // Takes the lock if nobody has it. Some disks know no locks: whoever comes then has it.
    explicit HomeClaim(const QString& home);
    ~HomeClaim();
    HomeClaim(const HomeClaim&) = delete;
    HomeClaim& operator=(const HomeClaim&) = delete;

    bool IsOurs() const { return isOurs_; }
    bool IsOf(const QString& home) const;

    // Of our own claim: from now on this run asks for the front whenever another one calls.
    void AnswerCalls();
    // Of another run's claim: calls it to the front. False when it doesn't answer soon.
    bool CallOwner() const;

private:
    void AnswerCall();

    int directory_;
    bool isOurs_;
    QString name_; // under which the owner is called
    QLocalServer calls_;
};

} // namespace lineforge
