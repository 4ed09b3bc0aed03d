#include "gui/EveryWindow.h"
#include "gui/MenuPaths.h"
#include "qt/views/AccessibleName.h"

#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

bool IsEntry(const MenuItem& item)
{
    return item.Items.empty() && !IsSeparator(item);
}

void ExpectTold(QAccessibleInterface& level, const std::vector<MenuItem*>& items)
{
    ASSERT_EQ(level.childCount(), static_cast<int>(items.size()));
    for (int index = 0; index < level.childCount(); ++index) {
        const MenuItem& item = *items[static_cast<std::size_t>(index)];
        QAccessibleInterface* told = level.child(index);
        ASSERT_TRUE(told) << item.Name.toStdString();
        if (IsSeparator(item)) {
            EXPECT_EQ(told->role(), QAccessible::Separator) << item.Name.toStdString();
            continue;
        }
        EXPECT_EQ(told->role(), QAccessible::MenuItem) << item.Name.toStdString();
        EXPECT_EQ(told->text(QAccessible::Name), SpokenCaption(item.Caption));
        EXPECT_EQ(told->state().disabled, !item.Enabled) << item.Name.toStdString();
        if (item.Items.empty())
            continue;
        ASSERT_EQ(told->childCount(), 1) << item.Name.toStdString();
        EXPECT_EQ(told->child(0)->role(), QAccessible::PopupMenu) << item.Name.toStdString();
        EXPECT_EQ(told->child(0)->text(QAccessible::Name), SpokenCaption(item.Caption));
        ExpectTold(*told->child(0), item.Items);
    }
}

void AddAccessKeys(QStringList& keys, const Container& container)
{
    for (const Control* control : container.Controls()) {
        const auto* box = dynamic_cast<const TextBox*>(control);
        const auto* button = dynamic_cast<const Button*>(control);
        const char16_t key = box ? box->AccessKey : button ? button->AccessKey : u'\0';
        if (key != 0)
            keys += QKeySequence(Qt::ALT | static_cast<Qt::Key>(key)).toString();
        if (const auto* inner = dynamic_cast<const Container*>(control))
            AddAccessKeys(keys, *inner);
    }
}

using MenusToldTest = EveryWindowTest;

INSTANTIATE_TEST_SUITE_P(Windows, MenusToldTest, testing::ValuesIn(every_window::all), NameOf);

TEST_P(MenusToldTest, EveryMenuAndEntry_HasItsNameAndRole)
{
    const Form& form = OpenForm();
    QAccessibleInterface* bar = MenuBarTold(ViewOf(form));
    ASSERT_EQ(bar != nullptr, !form.Menus.empty());
    if (bar)
        ExpectTold(*bar, form.Menus);
}

// Which key is whose in a window, of those that are pressed with Alt.
TEST_P(MenusToldTest, EveryAccessKeyLeadsToOnePlace)
{
    const Form& form = OpenForm();
    QStringList keys;
    for (const MenuItem* menu : form.Menus)
        if (const QKeySequence key = QKeySequence::mnemonic(menu->Caption); !key.isEmpty())
            keys += key.toString();
    AddAccessKeys(keys, form);
    QStringList once = keys;
    once.removeDuplicates();
    EXPECT_EQ(keys, once);
}

// Windows that have menus, whose commands tell that they run and do nothing else.
class MenuKeysTest : public EveryWindowTest
{
protected:
    MenuKeysTest() : Opened(OpenForm())
    {
        ForEachItem(Opened.Menus, [this](const MenuPath& path) {
            MenuItem& item = *path.back();
            item.Enabled = true;
            item.Click = [this, &item] { (item.Items.empty() ? Fired : Unfolded) += item.Name; };
        });
    }

    void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(ViewOf(Opened).windowHandle(), key, modifiers);
    }
    QMenuBar& Bar() { return Find<QMenuBar>(Opened, {}); }
    QAction* ActionOf(const MenuItem& item) { return &Find<QAction>(Opened, item.Name); }

    // Presses a key until the entry is marked, once for each entry there at the most.
    template <class Menu>
    bool MarkBy(Qt::Key key, const Menu& menu, const MenuItem& item)
    {
        for (qsizetype pressed = 0; menu.activeAction() != ActionOf(item) && pressed < menu.actions().size(); ++pressed)
            Type(key);
        return menu.activeAction() == ActionOf(item);
    }

    // From the closed bar, with nothing but Alt, the arrows and Enter.
    bool Choose(const MenuPath& path)
    {
        Type(Qt::Key_Alt);
        if (!MarkBy(Qt::Key_Right, Bar(), *path.front()))
            return false;
        for (std::size_t level = 1; level < path.size(); ++level) {
            Type(level == 1 ? Qt::Key_Down : Qt::Key_Right);
            const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu || !MarkBy(Qt::Key_Down, *menu, *path[level]))
                return false;
        }
        Type(Qt::Key_Return);
        return true;
    }

    void CloseMenus()
    {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        Type(Qt::Key_Escape);
    }

    Form& Opened;
    QStringList Fired;
    QStringList Unfolded;
};

INSTANTIATE_TEST_SUITE_P(Windows, MenuKeysTest, testing::ValuesIn(every_window::withMenus), NameOf);

TEST_P(MenuKeysTest, ArrowsLeadToEveryEntry_AndEnterRunsIt)
{
    ForEachItem(Opened.Menus, [this](const MenuPath& path) {
        if (!IsEntry(*path.back()))
            return;
        Fired.clear();
        EXPECT_TRUE(Choose(path)) << path.back()->Name.toStdString();
        EXPECT_EQ(Fired, QStringList{path.back()->Name});
        CloseMenus();
    });
}

TEST_P(MenuKeysTest, AltAndTheLetter_OpenTheMenuOrRunTheEntryOfTheBar)
{
    for (const MenuItem* menu : Opened.Menus) {
        const QKeySequence key = QKeySequence::mnemonic(menu->Caption);
        if (key.isEmpty())
            continue;
        Fired.clear();
        Unfolded.clear();
        Type(key[0].key(), Qt::AltModifier);
        ServeEvents();
        EXPECT_EQ(Fired + Unfolded, QStringList{menu->Name});
        EXPECT_EQ(QApplication::activePopupWidget() != nullptr, !menu->Items.empty()) << menu->Name.toStdString();
        CloseMenus();
    }
}

TEST_P(MenuKeysTest, Escape_LeavesTheMenusToTheFieldThatHadTheFocus)
{
    const QWidget* before = QApplication::focusWidget();
    Type(Qt::Key_Alt);
    EXPECT_NE(Bar().activeAction(), nullptr);
    Type(Qt::Key_Down);
    Type(Qt::Key_Escape);
    Type(Qt::Key_Escape);
    EXPECT_EQ(Bar().activeAction(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), before);
    EXPECT_EQ(Fired, QStringList());
}

} // namespace
} // namespace lineforge
