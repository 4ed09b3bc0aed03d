#include "gui/WindowCommands.h"
#include "qt/style/Desktop.h"
#include "shell/handlers/InstallHandlers.h"
#include "wayland/SeenScreen.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QThread>
#include <QWindow>

#include <vector>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// The whole program, seen as its user sees it: by pictures of the screen.
class CompositorTest : public ProgramWindowTest
{
protected:
    CompositorTest()
    {
        BranchBuilder(Home, u'A').Row({{u"File", u"A001"}, {u"Forename", u"John"}}).Picture(u"A001", Qt::red).Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}});
    }

    bool IsSeen(const Form& form) { return lineforge::IsSeen(ViewOf(form)); }

    static constexpr int patience = 60000;
};

TEST_F(CompositorTest, TheMainWindow_TakesWhatIsFree_AndIsSeenWhole_WithAllThatItWasLaidOutWith)
{
    OpenBranch(u"Smiths"_s);
    auto& view = static_cast<QMainWindow&>(ViewOf(*P.Form1));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    EXPECT_TRUE(view.isMaximized());
    EXPECT_TRUE(QTest::qWaitFor([&view] { return view.frameGeometry().height() < view.screen()->size().height(); }));
    EXPECT_EQ(view.frameGeometry().width(), view.screen()->size().width());
    const QWidget& inside = *view.centralWidget();
    for (const QWidget* child : inside.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const bool isLargerThanAnyWindow = child->objectName() == P.Form1->Picture1.Name;
        EXPECT_TRUE(isLargerThanAnyWindow || child->isHidden() || inside.rect().contains(child->geometry()))
            << qUtf8Printable(child->objectName());
    }
    EXPECT_TRUE(IsSeen(*P.Form1));
}

TEST_F(CompositorTest, TheRecord_IsAsLargeAsTheMainWindow_AndStandsBeforeIt)
{
    OpenBranch(u"Smiths"_s);
    P.Form1->Command1.Click();
    ASSERT_TRUE(IsSeen(*P.Form3));
    EXPECT_TRUE(ViewOf(*P.Form3).isMaximized());
    P.Form3->Command2.Click();
    EXPECT_TRUE(IsSeen(*P.Form1));
}

TEST_F(CompositorTest, TheSplash_StaysBeforeTheMainWindow_AsLargeAsItIsTold)
{
    WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}}, 0);
    InstallHandlers(P);
    StartProgram(P);
    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_TRUE(IsSeen(*P.form9));
    EXPECT_EQ(ViewOf(*P.form9).size(), PixelScale().ToPixels(forms::form9().Client));
    P.Form1->Show();
    EXPECT_TRUE(IsSeen(*P.form9));
}

TEST_F(CompositorTest, AWindowThatIsBehindTheMainOne_ComesBeforeIt_WhenItIsShownAgain)
{
    OpenBranch(u"Smiths"_s);
    P.Form1->Open.Click();
    EXPECT_TRUE(IsSeen(*P.Form8));
    P.Form1->Show();
    EXPECT_TRUE(IsSeen(*P.Form1));
    P.Form1->Open.Click();
    EXPECT_TRUE(IsSeen(*P.Form8));
}

// Without those the toolkit makes ordinary windows of menus.
TEST_F(CompositorTest, EveryMenu_OpensAndCloses_WithoutPointerAndKeyboard)
{
    OpenBranch(u"Smiths"_s);
    auto& view = static_cast<QMainWindow&>(ViewOf(*P.Form1));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    for (QAction* action : view.menuBar()->actions()) {
        QMenu& menu = *action->menu();
        if (!action->isEnabled())
            continue;
        view.menuBar()->setActiveAction(action);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&menu)) << qUtf8Printable(action->text());
        for (QAction* entry : menu.actions()) {
            if (!entry->menu() || !entry->isEnabled())
                continue;
            menu.setActiveAction(entry);
            EXPECT_TRUE(QTest::qWaitForWindowExposed(entry->menu())) << qUtf8Printable(entry->text());
        }
        menu.close();
        ServeEvents();
    }
}

// What is behind another window and is asked for. There is no hand that could press anything.
class CompositorCommandTest : public WindowCommandTest
{
protected:
    bool ComesToFront(QWidget& window) override { return IsSeen(window); }
    void PutInFront(QWidget& window) override
    {
        ShowInFront(window);
        EXPECT_TRUE(IsSeen(window));
    }
    void Press(QWidget& window, const std::vector<const char*>& path) override
    {
        const QString name = QString::fromLatin1(path.back());
        if (auto* entry = window.findChild<QAction*>(name))
            entry->trigger();
        else
            QTest::mouseClick(window.findChild<QWidget*>(name), Qt::LeftButton);
    }
};

INSTANTIATE_TEST_SUITE_P(Commands, CompositorCommandTest, testing::ValuesIn(window_commands::all), NameOfCommand);

TEST_P(CompositorCommandTest, AWindowThatIsBehind_ComesToTheFront)
{
    ASSERT_NO_FATAL_FAILURE(OpenWindow());
    PutInFront(Asking());
    GiveCommand();
    EXPECT_TRUE(ComesToFront(AskedFor()));
}

// Without a keyboard no window is ever told that it is in front.
class KeyboardTest : public CompositorTest
{
protected:
    static bool ComesToFront(const QWidget& view)
    {
        return QTest::qWaitFor([&view] { return view.isActiveWindow(); }, patience);
    }

    // Whether both come to stand on the screen, the one before the other.
    bool ComesBefore(const Form& form, const Form& other)
    {
        return QTest::qWaitFor(
            [&] {
                const QString scene = Scene(); // from the topmost window to the lowest
                const qsizetype upper = scene.indexOf(TitleInScene(form));
                return upper >= 0 && scene.indexOf(TitleInScene(other)) > upper;
            },
            patience);
    }

    static void ServeNothingFor(int milliseconds) { QThread::msleep(static_cast<unsigned long>(milliseconds)); }

private:
    static QString Scene()
    {
        QProcess teller;
        teller.start(u"weston-debug"_s, {u"scene-graph"_s});
        if (!teller.waitForFinished() || teller.exitCode() != 0)
            throw std::runtime_error("the compositor doesn't tell what is on its screen");
        return QString::fromUtf8(teller.readAllStandardOutput());
    }
    QString TitleInScene(const Form& form) { return u"window '"_s + ViewOf(form).windowTitle() + u"' of"; }
};

// As on a machine that is slow: the other is still on its way when the one that is asked for is looked after.
TEST_F(KeyboardTest, AWindowThatIsShownRightAfterAnother_ComesBeforeIt_HoweverLateThatArrives)
{
    OpenBranch(u"Smiths"_s);
    ASSERT_TRUE(ComesToFront(ViewOf(*P.Form1)));
    P.Form1->Command1.Click();
    P.Form1->Show();
    ServeNothingFor(200);
    EXPECT_TRUE(ComesBefore(*P.Form1, *P.Form3));
    EXPECT_TRUE(IsSeen(*P.Form1));
}

// A box that opens in between belongs before all; when it has closed, what was asked for is looked after.
TEST_F(KeyboardTest, AWindowThatIsShownRightBeforeABox_ComesBeforeTheOthers_WhenTheBoxHasClosed)
{
    OpenBranch(u"Smiths"_s);
    P.Form1->Command1.Click();
    ASSERT_TRUE(ComesToFront(ViewOf(*P.Form3)));
    P.Form1->Show();
    QMessageBox box(&ViewOf(*P.Form3));
    box.open();
    ASSERT_TRUE(ComesToFront(box));
    ServeNothingFor(200);
    ServeEvents();
    box.close();
    EXPECT_TRUE(ComesBefore(*P.Form1, *P.Form3));
}

} // namespace
} // namespace lineforge
