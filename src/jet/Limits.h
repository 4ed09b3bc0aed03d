#pragma once

namespace lineforge::jet
{

// From here on this process has 512 MB of memory and 30 seconds of the processor, writes no file, leaves no core and
// ends with the one that started it, and the environment doesn't change how files are read.
void LimitProcess();

} // namespace lineforge::jet
