#pragma once

#include "platform/canvas/PictureBox.h"
#include "qt/windows/BuildSite.h"

namespace lineforge
{

class PictureView;

// What other controls stand in. These are built by the caller, in the widget that is given back.
QWidget* BuildWidget(const BuildSite& site, Frame& frame);
PictureView* BuildWidget(const BuildSite& site, PictureBox& picture);

} // namespace lineforge
