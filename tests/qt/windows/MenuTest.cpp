#include "qt/Dialogs.h"
#include "qt/WindowTest.h"

#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct MenuForm : Form {
    MenuForm() : Form(u"MenuForm", u"Menus", {6000, 3000}) {}
    MenuItem mnuFile{Menus, u"mnuFile", u"&File"};
    MenuItem Open{mnuFile, u"Open", u"&Open"};
    MenuItem mnuDash1{mnuFile, u"mnuDash1", u"-"};
    MenuItem mnuCopy{mnuFile, u"mnuCopy", u"Copy"};
    MenuItem mnuBackup{mnuCopy, u"mnuBackup", u"Make Bac&kup"};
    MenuItem mnuHelp{Menus, u"mnuHelp", u"&Help"};
    MenuItem mnuConts{mnuHelp, u"mnuConts", u"Contents"};
    Button Command1{*this, u"Command1", {150, 150, 1200, 375}, u"Records"};
};

struct MenuTest : WindowTest {
    Window<MenuForm> Menus{System()};
    void SetUp() override
    {
        Menus->Visible = true;
        Activate(*Menus);
    }
    QAction& Action(const QString& name) { return Find<QAction>(*Menus, name); }

    // What the menu bar or a menu lists, as it is read.
    static QStringList Texts(const QWidget& menu)
    {
        QStringList texts;
        for (const QAction* action : menu.actions())
            texts += action->isSeparator() ? u"-"_s : action->text();
        return texts;
    }
};

TEST_F(MenuTest, CaptionsStandInTheirOrder_SeparatorsAndSubmenusToo)
{
    EXPECT_EQ(Texts(Find<QMenuBar>(*Menus, {})), QStringList({u"&File"_s, u"&Help"_s}));
    EXPECT_EQ(Texts(Find<QMenu>(*Menus, u"mnuFile"_s)), QStringList({u"&Open"_s, u"-"_s, u"Copy"_s}));
    EXPECT_EQ(Texts(Find<QMenu>(*Menus, u"mnuCopy"_s)), QStringList{u"Make Bac&kup"_s});
}

TEST_F(MenuTest, MenusAndEntriesCarryTheirNames)
{
    EXPECT_EQ(Action(u"mnuFile"_s).text(), u"&File"_s);
    EXPECT_EQ(Action(u"mnuBackup"_s).text(), u"Make Bac&kup"_s);
    EXPECT_TRUE(Action(u"mnuDash1"_s).isSeparator());
}

TEST_F(MenuTest, AnEntryRunsItsHandler)
{
    int runs = 0;
    Menus->mnuBackup.Click = [&runs] { ++runs; };
    QTest::keyClick(&ViewOf(*Menus), Qt::Key_F, Qt::AltModifier);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Return}) {
        ServeEvents();
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), key);
    }
    EXPECT_EQ(runs, 1);
}

TEST_F(MenuTest, ReadersChooseAnEntry_OnceTheyHaveTheirAnswer_WhetherItsMenuIsOpenOrNot)
{
    QStringList story;
    Menus->mnuFile.Click = [&story] { story += u"File"_s; };
    Menus->Open.Click = [&story] { story += u"Open"_s; };
    Action(u"Open"_s).trigger();
    EXPECT_EQ(story, QStringList());
    ServeEvents();
    EXPECT_EQ(story, QStringList({u"File"_s, u"Open"_s}));

    auto& menu = Find<QMenu>(*Menus, u"mnuFile"_s);
    menu.popup({10, 10});
    ServeEvents();
    Action(u"Open"_s).trigger();
    EXPECT_EQ(story.size(), 3);
    ServeEvents();
    EXPECT_EQ(story.mid(2), QStringList({u"File"_s, u"Open"_s}));
    menu.close();
}

TEST_F(MenuTest, WhileABoxWaitsForAnAnswer_ReadersChooseAndPressNothing)
{
    int runs = 0;
    Menus->Open.Click = Menus->Command1.Click = [&runs] { ++runs; };
    const NextDialog next([&](QDialog& box) {
        Action(u"Open"_s).trigger();
        Find<QPushButton>(*Menus, u"Command1"_s).click();
        ServeEvents();
        box.reject();
    });
    Machine().Bundle().Prompts.MsgBox(u"Title"_s, u"Text"_s, Buttons::Plain);
    ServeEvents();
    EXPECT_EQ(runs, 0);
}

TEST_F(MenuTest, OpeningAMenuIsItsClick)
{
    int opened = 0;
    Menus->mnuFile.Click = [&opened] { ++opened; };
    auto& menu = Find<QMenu>(*Menus, u"mnuFile"_s);
    menu.popup({10, 10});
    ServeEvents();
    EXPECT_EQ(opened, 1);
    menu.close();
}

TEST_F(MenuTest, AccessKeysOpenTheMenuAndChooseTheEntry)
{
    QStringList story;
    Menus->mnuFile.Click = [&story] { story += u"File"_s; };
    Menus->Open.Click = [&story] { story += u"Open"_s; };
    QTest::keyClick(&ViewOf(*Menus), Qt::Key_F, Qt::AltModifier);
    QTest::keyClick(&Find<QMenu>(*Menus, u"mnuFile"_s), Qt::Key_O);
    EXPECT_EQ(story, QStringList({u"File"_s, u"Open"_s}));
}

TEST_F(MenuTest, EnabledFollows_AndADisabledEntryIsDead)
{
    int runs = 0;
    Menus->Open.Click = [&runs] { ++runs; };
    Menus->Open.Enabled = false;
    EXPECT_FALSE(Action(u"Open"_s).isEnabled());
    Action(u"Open"_s).trigger();
    EXPECT_EQ(runs, 0);
    for (const bool enabled : {false, true}) {
        Menus->mnuHelp.Enabled = enabled;
        EXPECT_EQ(Action(u"mnuHelp"_s).isEnabled(), enabled);
        EXPECT_EQ(Find<QMenu>(*Menus, u"mnuHelp"_s).isEnabled(), enabled);
    }
}

TEST_F(MenuTest, AnEntryOfADisabledMenu_IsDeadForReadersToo)
{
    QStringList story;
    Menus->mnuFile.Click = [&story] { story += u"File"_s; };
    Menus->mnuCopy.Click = [&story] { story += u"Copy"_s; };
    Menus->mnuBackup.Click = [&story] { story += u"Backup"_s; };
    Menus->mnuFile.Enabled = false;
    Action(u"mnuBackup"_s).trigger();
    ServeEvents();
    EXPECT_EQ(story, QStringList());
    Menus->mnuFile.Enabled = true;
    Action(u"mnuBackup"_s).trigger();
    ServeEvents();
    EXPECT_EQ(story, QStringList({u"File"_s, u"Copy"_s, u"Backup"_s}));
}

TEST_F(MenuTest, AnOpenMenuGoesWithItsWindow_AndWithNoOther)
{
    Window<MenuForm> other(System());
    other->Visible = true;
    auto& menu = Find<QMenu>(*Menus, u"mnuFile"_s);
    menu.popup({10, 10});
    other->Visible = false;
    EXPECT_TRUE(menu.isVisible());
    Menus->Visible = false;
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(MenuTest, AHandlerMayUnloadItsOwnWindow)
{
    Menus->Open.Click = [this] { Menus.Unload(); };
    Action(u"Open"_s).trigger();
    ServeEvents();
    EXPECT_FALSE(Menus.IsLoaded());
    PassEventLoop();
}
} // namespace

} // namespace lineforge
