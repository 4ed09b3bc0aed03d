#pragma once

#include "qt/windows/BuildSite.h"

namespace lineforge
{

// What moves through something longer: a window, a sound or film, the records.
void BuildWidget(const BuildSite& site, ScrollBar& bar);
// Without a place it is heard and not seen.
void BuildWidget(const BuildSite& site, MultimediaControl& player);
void BuildWidget(const BuildSite& site, DataControl& data);

} // namespace lineforge
