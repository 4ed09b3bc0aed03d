#pragma once

#include "qt/windows/BuildSite.h"

namespace lineforge
{

// Pictures and outlines.
void BuildWidget(const BuildSite& site, Image& image);
void BuildWidget(const BuildSite& site, Shape& shape);

} // namespace lineforge
