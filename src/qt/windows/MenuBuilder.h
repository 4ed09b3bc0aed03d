#pragma once

#include "platform/controls/Controls.h"
#include "qt/events/Bindings.h"
#include "qt/events/HandlerGate.h"

#include <memory>
#include <vector>

class QMenuBar;

namespace lineforge
{

// Fills a menu bar from the menus of a window. A menu and its action, like every entry, carry the name of their item.
void BuildMenus(QMenuBar& bar, const std::vector<MenuItem*>& menus, const std::shared_ptr<const Gate>& gate,
                Bindings& bindings);

} // namespace lineforge
