#pragma once

namespace lineforge
{

// Gives a file another name on the same disk when nothing has that yet, not even a link that leads nowhere; false
// otherwise, and the file keeps its name. Absolute paths, in the disk's own bytes.
[[nodiscard]] bool RenameIfFree(const char* from, const char* to);

} // namespace lineforge
