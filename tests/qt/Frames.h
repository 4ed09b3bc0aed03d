#pragma once

#include "qt/WindowTest.h"
#include "support/Clocks.h"

namespace lineforge
{

// Until all that has been changed is on the screen: one frame of ours, and then the rest that the toolkit takes before
// it paints.
inline void PassAFrame(HeldClocks& clocks)
{
    for (const int time : {16, 10}) {
        clocks.LetPass(std::chrono::milliseconds(time));
        ServeEvents();
    }
}

} // namespace lineforge
