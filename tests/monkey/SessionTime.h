#pragma once

#include <chrono>

namespace lineforge::monkey
{

// From here on the clocks of this thread stand still, at the same hour in every session, but for what is let pass. So
// it is the player who decides what is done before a timer's tick and what behind it.
void StopClocks();
void LetTimePass(std::chrono::milliseconds time);

} // namespace lineforge::monkey
