#pragma once

#include "qt/windows/BuildSite.h"

namespace lineforge
{

// What shows a text, or takes one.
void BuildWidget(const BuildSite& site, Label& label);
void BuildWidget(const BuildSite& site, TextBox& box);
void BuildWidget(const BuildSite& site, TextPanel& panel);

} // namespace lineforge
