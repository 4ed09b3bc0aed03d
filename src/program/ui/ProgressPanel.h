#pragma once

#include "platform/controls/Controls.h"
#include "platform/machine/Platform.h"

namespace lineforge
{

// What follows most of the lines that are printed into a progress panel: yields, and when the text has come near the
// panel's end makes the panel 1000 twips higher and moves its bar on by 500. The newest line stays in view, also in a
// panel that an earlier run has made higher; but not for a user who has scrolled back to read what has passed, until
// the end is in view again.
void StepPanel(EventLoop& loop, TextPanel& panel, ScrollBar& bar);

// Moves the bar on until the newest line can be seen, unless the user has scrolled back; a panel that an earlier run
// has made high holds a text that ends far above its own end.
void KeepLastLineInView(const TextPanel& panel, ScrollBar& bar);

// The bar has been moved: half of what the panel is moved by.
void ScrollPanel(TextPanel& panel, const ScrollBar& bar);

} // namespace lineforge
