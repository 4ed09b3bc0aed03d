#include "support/ChildProcess.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lineforge
{

namespace
{
constexpr int exitCodeOfException = 255;

int Guarded(const std::function<int()>& action)
{
    try {
        return action();
    } catch (...) {
        return exitCodeOfException;
    }
}
} // namespace

ChildProcess::ChildProcess(const std::function<int()>& action) : id_(fork())
{
    // Without the parent's clean-up: its temporary directories and reports are not the child's.
    if (id_ == 0)
        _exit(Guarded(action));
    if (id_ < 0) {
        ADD_FAILURE() << "no child process";
        isRunning_ = false;
    }
}

ChildProcess::~ChildProcess()
{
    if (isRunning_) {
        KillNow();
        Wait();
    }
}

void ChildProcess::KillNow()
{
    if (isRunning_)
        kill(id_, SIGKILL);
}

int ChildProcess::Wait()
{
    if (!isRunning_)
        return -1;
    int status = 0;
    waitpid(id_, &status, 0);
    isRunning_ = false;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int ExitCodeInChild(const std::function<int()>& action)
{
    return ChildProcess(action).Wait();
}

} // namespace lineforge
