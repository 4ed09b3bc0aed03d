#include "platform/qt/HelpWindow.h"

#include "gui/qt/Dialogs.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtPrintSystem.h"
#include "platform/qt/QtPrompts.h"
#include "support/Printing.h"
#include "support/TemporaryHome.h"

#include <QApplication>
#include <QPointer>
#include <QTextBrowser>

#include <gmock/gmock.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct HelpWindowTest : testing::Test {
    TemporaryHome Home;
    QtEventLoop Loop;
    QtPrintSystem Printers;
    std::unique_ptr<QtPrompts> Ask = std::make_unique<QtPrompts>(Loop, Printers, [this] { return Home.Path(); });

    static QWidgetList HelpWindows()
    {
        QWidgetList found;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == u"HelpWindow" && window->isVisible())
                found += window;
        return found;
    }
    static QString Text() { return HelpWindows().first()->findChild<QTextBrowser*>()->toPlainText(); }
};

TEST_F(HelpWindowTest, ShowsTheFileAsHtml)
{
    Ask->ShowHelp(
        Home.WriteFile(u"help.hlp", "<html><head><title>Help on trees</title></head><b>Grow \xC3\xA9</b> it"));
    ASSERT_EQ(HelpWindows().size(), 1);
    EXPECT_EQ(Text(), u"Grow \u00E9 it"_s);
    EXPECT_EQ(HelpWindows().first()->windowTitle(), u"Help on trees"_s);
}

TEST_F(HelpWindowTest, ThereIsOnlyOne)
{
    Ask->ShowHelp(Home.WriteFile(u"a.hlp", "first"));
    Ask->ShowHelp(Home.WriteFile(u"b.hlp", "second"));
    ASSERT_EQ(HelpWindows().size(), 1);
    EXPECT_EQ(Text(), u"second"_s);
}

TEST_F(HelpWindowTest, ClosedByItsFrameItComesBack)
{
    const QString path = Home.WriteFile(u"a.hlp", "first");
    Ask->ShowHelp(path);
    HelpWindows().first()->close();
    EXPECT_TRUE(HelpWindows().isEmpty());
    Ask->ShowHelp(path);
    EXPECT_EQ(HelpWindows().size(), 1);
}

TEST_F(HelpWindowTest, AMissingFileIsTold_AndNothingOpens)
{
    const QString path = Home.Path() + u"/nowhere.hlp"_s;
    const NextDialog dialog([&path](QDialog& box) {
        EXPECT_EQ(box.windowTitle(), u"Lineforge"_s);
        EXPECT_EQ(AsMessageBox(box).text(), u"The help file can't be found.\n"_s + path);
        box.reject();
    });
    Ask->ShowHelp(path);
    EXPECT_TRUE(HelpWindows().isEmpty());
}

TEST_F(HelpWindowTest, ADirectoryIsNoHelpFile)
{
    const NextDialog dialog([](QDialog& box) { box.reject(); });
    Ask->ShowHelp(Home.Path());
    EXPECT_TRUE(HelpWindows().isEmpty());
}

TEST_F(HelpWindowTest, ItGoesWithTheProgram)
{
    Ask->ShowHelp(Home.WriteFile(u"a.hlp", "first"));
    const QPointer<QWidget> window = HelpWindows().first();
    Ask.reset();
    EXPECT_FALSE(window);
}
} // namespace

} // namespace lineforge
