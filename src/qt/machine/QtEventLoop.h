#pragma once

#include "platform/machine/Platform.h"

namespace lineforge
{

class QtEventLoop : public EventLoop
{
public:
    void DoEvents() override;
    void PaintWindows() override;
    // Takes all boxes that wait for an answer down, so that whoever opened them is come back to and unwinds as well.
    [[noreturn]] void End(int exitCode) override;

    // The loop must not be entered any more.
    bool HasEnded() const { return ended_; }
    int ExitCode() const { return exitCode_; }
    // ProgramEnded when the program has been told to end.
    void ThrowIfEnded() const;

private:
    bool ended_ = false;
    int exitCode_ = 0;
};

} // namespace lineforge
