#pragma once

#include "program/state/Program.h"

namespace lineforge
{

// The picture of the map, as it stands, and any picture over it. The map's items stay what they are.
void CopyMapPicture(Program& p);
void PasteMapPicture(Program& p);

} // namespace lineforge
