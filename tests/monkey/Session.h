#pragma once

#include <QString>

#include <cstdint>

namespace lineforge::monkey
{

class Scratch;

struct SessionOrder {
    std::uint64_t Seed = 0;
    int Steps = 0;
};

// Plays in the directory, with as many runs of the program as the steps are enough for: one that has ended is started
// again on the home as it was left. What happens stands in the directory's journal. Gives back how many findings there
// are.
int PlaySession(const SessionOrder& order, const Scratch& scratch);

} // namespace lineforge::monkey
