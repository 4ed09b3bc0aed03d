#pragma once

#include "platform/Controls.h"
#include "platform/qt/Bindings.h"
#include "platform/qt/Handlers.h"

#include <memory>
#include <vector>

class QMenuBar;

namespace lineforge
{

// Fills a menu bar from the menus of a window. A menu and its action, like every entry, carry the name of their item.
void BuildMenus(QMenuBar& bar, const std::vector<MenuItem*>& menus, const std::shared_ptr<const Gate>& gate,
                Bindings& bindings);

} // namespace lineforge
