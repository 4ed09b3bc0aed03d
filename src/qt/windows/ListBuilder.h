#pragma once

#include "qt/windows/BuildSite.h"

namespace lineforge
{

// Lists to choose from.
void BuildWidget(const BuildSite& site, ListBox& list);
void BuildWidget(const BuildSite& site, DriveList& list);
void BuildWidget(const BuildSite& site, DirectoryList& list);

} // namespace lineforge
