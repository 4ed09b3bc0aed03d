#pragma once

#include "ScratchHome.h"

#include <QProcess>

namespace lineforge::tour
{

// The program as a process of its own. What is left of it is killed with this object.
class RunningProgram
{
public:
    ~RunningProgram();

    void Start(const ScratchHome& home, const QString& platform);
    // Lets a moment pass, unless the program ends meanwhile.
    bool StillRunsAfter(int milliseconds);
    // How it ended, in words.
    QString Ending() const;
    bool EndedWell() const;
    // All that it has said on its outputs so far.
    QString Output();

private:
    QProcess process_;
    QString output_;
};

} // namespace lineforge::tour
