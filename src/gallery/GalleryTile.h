#pragma once

#include "platform/controls/Controls.h"
#include "program/state/Windows.h"

namespace lineforge
{

// Whether the page has come to the tile, which may be hidden for the time of an open item: it has its tag then.
bool IsBuilt(const Image& tile);

// Shows an empty tile, which stands for the subscript behind its index.
void ShowEmptyTile(forms::Form5& form, int index);

} // namespace lineforge
