#pragma once

#include "check/Home.h"

namespace lineforge::check
{

// Finds the branches of the home, those in the list and those on the disk, and tells what is wrong with the list.
void CheckRegistry(Home& home);

} // namespace lineforge::check
