#pragma once

#include "check/Home.h"

namespace lineforge::check
{

// Whether the fathers, mothers and spouses of a branch's records are there, in the branch or in a sibling of it. After
// all databases.
void CheckLinks(Home& home, const Branch& branch);

} // namespace lineforge::check
