#pragma once

#include <glib.h>

// The library's own header doesn't stand being read before glib's.
#include <mdbtools.h>

namespace lineforge::jet
{

// The start of a slot is a place on its page and flags beside it.
inline constexpr int placeMask = 0x1FFF;

} // namespace lineforge::jet
