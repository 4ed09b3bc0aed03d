#pragma once

#include "platform/store/JetStreamFormat.h"

namespace lineforge::jet
{

// Thrown for a file that can't be taken at all.
struct Refused {
    jetstream::Outcome Why;
};

} // namespace lineforge::jet
