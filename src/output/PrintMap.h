#pragma once

namespace lineforge
{

struct Program;

// The whole map on one page, on its side, in a frame; what is larger than the page is cut off. Errors are shown.
void PrintMap(Program& p);

} // namespace lineforge
