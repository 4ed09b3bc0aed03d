#include "map/tools/ToolWork.h"

#include "program/state/Program.h"

namespace lineforge
{

ToolWork::ToolWork(Program& p) : MapWork(p), Screen(p.Screen) {}

} // namespace lineforge
