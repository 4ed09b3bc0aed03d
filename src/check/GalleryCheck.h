#pragma once

#include "check/Home.h"

namespace lineforge::check
{

// The files of a branch's gallery: whose they are, on which tile they stand, and the pictures among them.
void CheckGallery(Home& home, const Branch& branch);

} // namespace lineforge::check
