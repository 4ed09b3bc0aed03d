#pragma once

#include "platform/controls/Controls.h"

#include <functional>
#include <utility>

namespace lineforge
{

// The one way from an event of the toolkit to a handler of the program, and the count of those that are running.
class Handlers
{
public:
    // Runs a handler and lets nothing pass through; without one the handler is called as it is.
    std::function<void(const Event&)> Runner;
    // The last handler has returned.
    Event Idle;

    void Run(const Event& handler);
    bool IsRunning() const { return running_ > 0; }

private:
    void Call(const Event& handler) const;

    int running_ = 0;
};

// The way of one window's events to its handlers. Closed when the window is unloaded: what its widgets still have to
// say leads nowhere then.
class Gate
{
public:
    explicit Gate(Handlers& handlers) : handlers_(handlers) {}

    void Close() { open_ = false; }
    bool IsOpen() const { return open_; }

    void Run(const Event& handler) const
    {
        if (open_ && handler)
            handlers_.Run(handler);
    }

private:
    Handlers& handlers_;
    bool open_ = true;
};

} // namespace lineforge
