#pragma once

#include <functional>
#include <sys/types.h>

namespace lineforge
{

// Runs an action in a child process of its own, so that it may limit itself, mount or be killed. What the action gives
// back is the child's exit code, 0 to 255; an exception that leaves it is 255.
class ChildProcess
{
public:
    explicit ChildProcess(const std::function<int()>& action);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // Ends it in the middle of whatever it does.
    void KillNow();

    // Waits for its end; the exit code, or -1 when it was killed.
    int Wait();

private:
    pid_t id_;
    bool isRunning_ = true;
};

// The exit code of an action in a child process.
int ExitCodeInChild(const std::function<int()>& action);

} // namespace lineforge
