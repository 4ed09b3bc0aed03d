#pragma once

class QWidget;

namespace lineforge
{

// Whether what the window holds comes to be seen somewhere on the compositor's screen, whole. Told by pictures of the
// screen, for as long as a busy machine may take.
[[nodiscard]] bool IsSeen(QWidget& window);

} // namespace lineforge
