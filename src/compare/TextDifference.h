#pragma once

#include "platform/controls/Controls.h"

#include <QString>

#include <utility>

namespace lineforge
{

// Where two texts differ: what is left of each when what they begin and end with alike, case ignored, is taken away.
std::pair<TextRange, TextRange> DifferenceOf(QStringView a, QStringView b);

} // namespace lineforge
