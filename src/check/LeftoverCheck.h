#pragma once

#include "check/Home.h"

namespace lineforge::check
{

// What is left in the directories of a home of work that was cut off.
void CheckLeftovers(Home& home);

// Whether a file of that name is such a thing.
bool IsLeftover(const QString& name);

} // namespace lineforge::check
