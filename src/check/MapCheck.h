#pragma once

#include "check/Home.h"

namespace lineforge::check
{

// The map files of a branch: their form, their items, and whether the records of the boxes are there. After all
// databases.
void CheckMaps(Home& home, Branch& branch);

// Notes who has no box on any map. After all maps.
void TellWithoutBox(Home& home, const Branch& branch);

} // namespace lineforge::check
