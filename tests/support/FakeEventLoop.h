#pragma once

#include "platform/machine/Platform.h"

#include <deque>
#include <functional>
#include <optional>

namespace lineforge
{

// An event loop in which only that happens which a test has queued.
class FakeEventLoop : public EventLoop
{
public:
    // What the user does at one of the coming yields; one a yield, in the order queued. What it throws leaves the
    // yield.
    void AtNextYield(std::function<void()> action);

    void DoEvents() override;
    void PaintWindows() override { ++Paintings; }
    [[noreturn]] void End(int exitCode) override;

    int Yields = 0;
    int Paintings = 0;
    std::optional<int> ExitCode; // once the program has ended

private:
    std::deque<std::function<void()>> waiting_;
};

} // namespace lineforge
