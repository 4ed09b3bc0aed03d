#pragma once

#include <array>
#include <functional>
#include <optional>
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

// What a child process tells its parent: one number after the other.
class Pipe
{
public:
    Pipe();
    ~Pipe();
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    // In the child, which ends when nobody can hear it any more.
    void Tell(int number) const;

    // In the parent, once the child runs: the child alone can tell from now on, so that its end is heard.
    void Listen();
    // Waits; nothing when there will never be anything more.
    std::optional<int> Hear() const;

private:
    std::array<int, 2> ends_{};
};

// The exit code of an action in a child process.
int ExitCodeInChild(const std::function<int()>& action);

} // namespace lineforge
