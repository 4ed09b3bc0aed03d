#pragma once

#include <chrono>

namespace lineforge
{

// The clocks of this thread stand still, at the hour that they have come to, as long as this lives: to whoever reads
// one and to the toolkit's timers no time passes but what is let pass. Other threads and other programs have theirs.
class HeldClocks
{
public:
    HeldClocks();
    ~HeldClocks();
    HeldClocks(const HeldClocks&) = delete;
    HeldClocks& operator=(const HeldClocks&) = delete;

    // What is due by then happens when it is served the next time, not in here.
    void LetPass(std::chrono::milliseconds time);
};

// The same from here on, for ever, and from the same hour in every program.
void StopClocks();
void LetTimePass(std::chrono::milliseconds time);

} // namespace lineforge
