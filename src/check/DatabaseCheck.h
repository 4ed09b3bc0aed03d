#pragma once

#include "check/Home.h"

namespace lineforge::check
{

// Reads the records of a branch, and tells what is wrong with its database as a whole and with the numbers in it.
void CheckDatabase(Home& home, Branch& branch);

} // namespace lineforge::check
