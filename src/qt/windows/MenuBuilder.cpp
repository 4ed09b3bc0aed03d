#include "qt/windows/MenuBuilder.h"

#include "qt/views/AccessibleName.h"
#include "qt/views/ClickableWidgets.h"

#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>

#include <algorithm>
#include <deque>
#include <iterator>
#include <utility>

namespace lineforge
{

namespace
{
using MenuPath = std::vector<const MenuItem*>;

// Tells a window's handlers what the user does with its menus, in the order in which it is done. The toolkit announces
// a menu in the midst of showing it, and can't bear that a box takes it away there: its opening is told as soon as the
// event loop has control again, or an entry of it is chosen.
class MenuUse : public QObject
{
public:
    MenuUse(QMenuBar& bar, std::shared_ptr<const Gate> gate) : QObject(&bar), bar_(bar), gate_(std::move(gate)) {}

    void Opens(const MenuItem& menu)
    {
        open_.push_back(&menu);
        untold_.push_back(&menu);
        Later([this] { TellOpenings(); });
    }

    // The toolkit closes a menu just before it runs the entry that was chosen from it.
    void Closes(const MenuItem& menu)
    {
        closing_.push_back(&menu);
        Later([this, &menu] {
            std::erase(open_, &menu);
            std::erase(closing_, &menu);
        });
    }

    // Readers choose an entry of a menu that stays open or has never been, and wait for an answer, which a box would
    // keep from them.
    void Chooses(const MenuItem& entry, const MenuPath& above)
    {
        if (above.empty() || IsAmong(closing_, above.back()))
            return Run(entry, above);
        Later([this, &entry, above] {
            if (gate_->IsOpen() && entry.Enabled && CanBePressed(bar_))
                Run(entry, above);
        });
    }

private:
    static bool IsAmong(const MenuPath& menus, const MenuItem* menu)
    {
        return std::ranges::find(menus, menu) != menus.end();
    }

    void Later(const Event& step) { QMetaObject::invokeMethod(this, step, Qt::QueuedConnection); }

    // As if all menus above had been opened, and could be.
    void Run(const MenuItem& entry, const MenuPath& above)
    {
        if (!gate_->IsOpen() || !std::ranges::all_of(above, [](const MenuItem* menu) { return menu->Enabled.value(); }))
            return;
        std::ranges::copy_if(above, std::back_inserter(untold_),
                             [this](const MenuItem* menu) { return !IsAmong(open_, menu); });
        TellOpenings();
        gate_->Run(entry.Click);
    }

    // One after the other, also when the first one's box lets the event loop run.
    void TellOpenings()
    {
        if (isTelling_)
            return;
        const QScopedValueRollback<bool> telling(isTelling_, true);
        while (!untold_.empty()) {
            const MenuItem* menu = untold_.front();
            untold_.pop_front();
            gate_->Run(menu->Click);
        }
    }

    const QMenuBar& bar_;
    std::shared_ptr<const Gate> gate_;
    MenuPath open_;
    MenuPath closing_;
    std::deque<const MenuItem*> untold_;
    bool isTelling_ = false;
};

// Builds on a menu bar and on a menu alike.
class MenuBuilder
{
public:
    MenuBuilder(MenuUse& use, Bindings& bindings) : use_(use), bindings_(bindings) {}

    template <class Menus>
    void Add(Menus& to, const std::vector<MenuItem*>& items, const MenuPath& above = {})
    {
        for (MenuItem* item : items) {
            QAction* action = item->Items.empty() ? AddEntry(to, *item, above) : AddMenu(to, *item, above);
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
    QAction* AddEntry(Menus& to, const MenuItem& item, const MenuPath& above)
    {
        if (item.Caption == u"-")
            return to.addSeparator();
        QAction* action = to.addAction(item.Caption);
        QObject::connect(action, &QAction::triggered, &use_, [&use = use_, &item, above] { use.Chooses(item, above); });
        return action;
    }

    template <class Menus>
    QAction* AddMenu(Menus& to, const MenuItem& item, MenuPath above)
    {
        QMenu* menu = to.addMenu(item.Caption);
        menu->setObjectName(item.Name);
        menu->setAccessibleName(SpokenCaption(item.Caption));
        QObject::connect(menu, &QMenu::aboutToShow, &use_, [&use = use_, &item] { use.Opens(item); });
        QObject::connect(menu, &QMenu::aboutToHide, &use_, [&use = use_, &item] { use.Closes(item); });
        above.push_back(&item);
        Add(*menu, item.Items, above);
        return menu->menuAction();
    }

    MenuUse& use_;
    Bindings& bindings_;
};
} // namespace

void BuildMenus(QMenuBar& bar, const std::vector<MenuItem*>& menus, const std::shared_ptr<const Gate>& gate,
                Bindings& bindings)
{
    MenuBuilder(*new MenuUse(bar, gate), bindings).Add(bar, menus);
}

} // namespace lineforge
