#pragma once

class QWidget;

namespace lineforge
{

// From now on it is known which windows the user works in. Calling it again changes nothing.
void FollowWindowsInUse();

// The window that the user works in, or worked in last while another program is in use; any that is shown when it was
// none yet. Null when none is shown. It may be minimised.
QWidget* LastWindowInUse();

// The same, for a box to belong to: one that is to be seen.
QWidget* WindowInUse();

} // namespace lineforge
