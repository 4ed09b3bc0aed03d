#include "support/FakeEventLoop.h"

#include <utility>

namespace lineforge
{

void FakeEventLoop::AtNextYield(std::function<void()> action)
{
    waiting_.push_back(std::move(action));
}

void FakeEventLoop::DoEvents()
{
    ++Yields;
    if (waiting_.empty())
        return;
    // Off the queue first: the action may yield itself.
    const std::function<void()> action = std::move(waiting_.front());
    waiting_.pop_front();
    action();
}

void FakeEventLoop::End(int exitCode)
{
    ExitCode = exitCode;
    throw ProgramEnded{};
}

} // namespace lineforge
