#pragma once

namespace lineforge::monkey
{

class Scratch;

// Starts the program on the home and opens each of its branches, as a patient user does who agrees to everything. In
// the journal stands what couldn't be opened; gives back how much that is.
int ReopenAll(const Scratch& scratch);

} // namespace lineforge::monkey
