#pragma once

#include "platform/controls/Controls.h"

#include <QAccessible>
#include <QWidget>

#include <functional>
#include <vector>

namespace lineforge
{

// From a menu of the bar down to an entry or to another menu.
using MenuPath = std::vector<MenuItem*>;

inline void ForEachItem(const std::vector<MenuItem*>& items, const std::function<void(const MenuPath&)>& visit,
                        MenuPath path = {})
{
    for (MenuItem* item : items) {
        path.push_back(item);
        visit(path);
        ForEachItem(item->Items, visit, path);
        path.pop_back();
    }
}

inline bool IsSeparator(const MenuItem& item)
{
    return item.Caption == u"-";
}

// The menu bar as readers are told of it; null where a window has none.
inline QAccessibleInterface* MenuBarTold(QWidget& window)
{
    QAccessibleInterface* top = QAccessible::queryAccessibleInterface(&window);
    for (int index = 0; index < top->childCount(); ++index)
        if (top->child(index)->role() == QAccessible::MenuBar)
            return top->child(index);
    return nullptr;
}

// An item as readers are told of it.
inline QAccessibleInterface* ItemTold(QWidget& window, const std::vector<MenuItem*>& menus, const MenuPath& path)
{
    QAccessibleInterface* level = MenuBarTold(window);
    const std::vector<MenuItem*>* items = &menus;
    for (const MenuItem* item : path) {
        const auto at = std::ranges::find(*items, item) - items->begin();
        QAccessibleInterface* told = level->child(static_cast<int>(at));
        if (item == path.back())
            return told;
        level = told->child(0);
        items = &item->Items;
    }
    return nullptr;
}

} // namespace lineforge
