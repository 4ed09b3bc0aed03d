#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/machine/Processes.h"

#include <QFileInfo>
#include <QStringList>

namespace lineforge
{

// Starts nothing, and remembers what was to be started: program and file, one after the other. Knows one other run at
// most, of which it is told.
class FakeProcesses : public Processes
{
public:
    qint64 Shell(const QString& program, const QString& file) override
    {
        if (!QFileInfo(program).isFile())
            throw RuntimeError(ErrorNumber::FileNotFound);
        Started << program << file;
        return Started.size();
    }

    HomeOwner ClaimHome(const QString& home) override
    {
        Claimed << home;
        return Owner;
    }

    void LeaveHomesBut(const QStringList& homes) override { Kept = homes; }

    QStringList Started;
    QStringList Claimed;
    QStringList Kept;                     // in which it went on at last
    HomeOwner Owner = HomeOwner::ThisRun; // of every home
};

} // namespace lineforge
