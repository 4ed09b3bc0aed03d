#pragma once

#include "qt/windows/BuildSite.h"

namespace lineforge
{

// What is pressed, ticked or chosen.
void BuildWidget(const BuildSite& site, Button& button);
void BuildWidget(const BuildSite& site, CheckBox& box);
void BuildWidget(const BuildSite& site, OptionButton& option);

} // namespace lineforge
