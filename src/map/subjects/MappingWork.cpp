#include "map/subjects/MappingWork.h"

#include "program/state/Program.h"

namespace lineforge
{

MappingWork::MappingWork(Program& p)
    : MapWork(p), Mapping(p.Mapping), Screen(p.Screen), Pictures(p.Pictures), Form7(p.Form7)
{
}

} // namespace lineforge
