#pragma once

#include "platform/machine/Platform.h"

#include <QElapsedTimer>

namespace lineforge
{

// For a stretch of work without a yield that may take long: from half a second on the windows stay painted. Nothing
// that the user does is served.
class Meanwhile
{
public:
    explicit Meanwhile(EventLoop& loop);

    // Costs next to nothing; to be called at every step.
    void KeepPainted();

private:
    EventLoop& loop_;
    QElapsedTimer sincePainted_;
    qint64 patience_;
};

} // namespace lineforge
