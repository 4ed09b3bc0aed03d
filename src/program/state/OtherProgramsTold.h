#pragma once

namespace lineforge
{

class OtherPrograms;
class Prompts;

// From now on the user is told what other programs do to the databases that are open.
void TellOfOtherPrograms(OtherPrograms& others, Prompts& prompts);

} // namespace lineforge
