#include "qt/events/HandlerGate.h"

#include "platform/machine/Platform.h"

#include <QScopeGuard>

namespace lineforge
{

void Handlers::Run(const Event& handler)
{
    if (!handler)
        return;
    ++running_;
    const auto leave = qScopeGuard([this] {
        if (--running_ == 0)
            Fire(Idle);
    });
    // A copy: a handler may put another one in its own place.
    Call(Event(handler));
}

// The end of the program unwinds to here, at every level of the event loop; the toolkit must not see it.
void Handlers::Call(const Event& handler) const
{
    try {
        if (Runner)
            Runner(handler);
        else
            handler();
    } catch (const ProgramEnded&) {
    }
}

} // namespace lineforge
