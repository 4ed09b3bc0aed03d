#include "platform/qt/MenuBuilder.h"

#include "platform/qt/AccessibleName.h"

#include <QMenu>
#include <QMenuBar>

namespace lineforge
{

namespace
{
// Builds on a menu bar and on a menu alike.
class MenuBuilder
{
public:
    MenuBuilder(const std::shared_ptr<const Gate>& gate, Bindings& bindings) : gate_(gate), bindings_(bindings) {}

    template <class Menus>
    void Add(Menus& to, const std::vector<MenuItem*>& items)
    {
        for (MenuItem* item : items) {
            QAction* action = item->Items.empty() ? AddEntry(to, *item) : AddMenu(to, *item);
            action->setObjectName(item->Name);
            // Where a system moves entries about by their captions, it would take ours for its own.
            action->setMenuRole(QAction::NoRole);
            // A menu takes its action along, but not the other way round.
            QMenu* menu = action->menu();
            bindings_.Follow(item->Enabled, [action, menu, item] {
                if (menu)
                    menu->setEnabled(item->Enabled);
                action->setEnabled(item->Enabled);
            });
        }
    }

private:
    template <class Menus>
    QAction* AddEntry(Menus& to, MenuItem& item)
    {
        if (item.Caption == u"-")
            return to.addSeparator();
        QAction* action = to.addAction(item.Caption);
        QObject::connect(action, &QAction::triggered, action, [gate = gate_, &item] { gate->Run(item.Click); });
        return action;
    }

    template <class Menus>
    QAction* AddMenu(Menus& to, MenuItem& item)
    {
        QMenu* menu = to.addMenu(item.Caption);
        menu->setObjectName(item.Name);
        menu->setAccessibleName(SpokenCaption(item.Caption));
        QObject::connect(menu, &QMenu::aboutToShow, menu, [gate = gate_, &item] { gate->Run(item.Click); });
        Add(*menu, item.Items);
        return menu->menuAction();
    }

    const std::shared_ptr<const Gate>& gate_;
    Bindings& bindings_;
};
} // namespace

void BuildMenus(QMenuBar& bar, const std::vector<MenuItem*>& menus, const std::shared_ptr<const Gate>& gate,
                Bindings& bindings)
{
    MenuBuilder(gate, bindings).Add(bar, menus);
}

} // namespace lineforge
