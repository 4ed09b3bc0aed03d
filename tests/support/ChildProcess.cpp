#include "support/ChildProcess.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

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

Pipe::Pipe()
{
    EXPECT_EQ(pipe(ends_.data()), 0);
}

Pipe::~Pipe()
{
    for (const int end : ends_)
        if (end >= 0)
            close(end);
}

void Pipe::Tell(int number) const
{
    if (write(ends_[1], &number, sizeof number) != sizeof number)
        _exit(1);
}

void Pipe::Listen()
{
    close(std::exchange(ends_[1], -1));
}

std::optional<int> Pipe::Hear() const
{
    int number = 0;
    return read(ends_[0], &number, sizeof number) == sizeof number ? std::optional(number) : std::nullopt;
}

int ExitCodeInChild(const std::function<int()>& action)
{
    return ChildProcess(action).Wait();
}

} // namespace lineforge
