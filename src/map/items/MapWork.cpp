#include "map/items/MapWork.h"

#include "program/state/Program.h"

namespace lineforge
{

MapPicture::MapPicture(Program& p) : Map(p.Map), Errors(p.Errors), Form1(p.Form1) {}

BoxWork::BoxWork(Program& p)
    : BranchRecords(p), MapPicture(p), Mouse(p.Mouse), Tools(p.Tools), Scratch(p.Scratch), Gallery(p.Gallery)
{
}

MapWork::MapWork(Program& p) : BoxWork(p), DatabaseOpening(p) {}

} // namespace lineforge
