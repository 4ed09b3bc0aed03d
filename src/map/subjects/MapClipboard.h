#pragma once

#include "platform/machine/Clipboard.h"
#include "program/state/MapState.h"
#include "program/state/Windows.h"

namespace lineforge
{

// The picture of the map, as it stands, and any picture over it. The map's items stay what they are.
void CopyMapPicture(MapState& map, forms::Form1& form, Clipboard& clipboard);
void PasteMapPicture(MapState& map, forms::Form1& form, Clipboard& clipboard);

} // namespace lineforge
