#include "gui/ProgramWindowTest.h"

#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QThread>
#include <QWindow>

#include <algorithm>
#include <cstring>
#include <functional>
#include <numeric>
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

    QImage SeenScreen()
    {
        const QString directory = Home.MakeDirectory(u"seen");
        QProcess camera;
        camera.setWorkingDirectory(directory);
        camera.start(u"weston-screenshooter"_s, QStringList());
        if (!camera.waitForFinished() || camera.exitCode() != 0)
            throw std::runtime_error("no picture of the screen");
        const QString taken = QDir(directory).entryList({u"*.png"_s}).value(0);
        const QImage picture = QImage(directory + u'/' + taken).convertToFormat(QImage::Format_RGB32);
        QFile::remove(directory + u'/' + taken);
        return picture;
    }

    // Whether what the window holds is to be seen somewhere on the screen, whole.
    bool IsSeen(const Form& form)
    {
        QWidget& client = *static_cast<QMainWindow&>(ViewOf(form)).centralWidget();
        return QTest::qWaitFor(
            [&] {
                const QImage wanted = client.grab().toImage().convertToFormat(QImage::Format_RGB32);
                return Shows(SeenScreen(), wanted);
            },
            patience);
    }

    static constexpr int patience = 60000;

private:
    static bool Shows(const QImage& screen, const QImage& wanted)
    {
        const int telling = TellingRow(wanted);
        for (int top = 0; top + wanted.height() <= screen.height(); ++top)
            for (int left = 0; left + wanted.width() <= screen.width(); ++left)
                if (ShowsRow(screen, wanted, {left, top}, telling) && ShowsAt(screen, wanted, {left, top}))
                    return true;
        return false;
    }
    // The one with the most in it. Others are as empty as much of the screen.
    static int TellingRow(const QImage& picture)
    {
        std::vector<int> changes;
        for (int row = 0; row < picture.height(); ++row) {
            const auto* dots = reinterpret_cast<const QRgb*>(picture.constScanLine(row));
            changes.push_back(
                std::inner_product(dots + 1, dots + picture.width(), dots, 0, std::plus(), std::not_equal_to()));
        }
        return static_cast<int>(std::ranges::max_element(changes) - changes.begin());
    }
    static bool ShowsRow(const QImage& screen, const QImage& wanted, QPoint corner, int row)
    {
        const auto length = static_cast<std::size_t>(wanted.width()) * sizeof(QRgb);
        const auto* seen = reinterpret_cast<const QRgb*>(screen.constScanLine(corner.y() + row)) + corner.x();
        return std::memcmp(seen, wanted.constScanLine(row), length) == 0;
    }
    static bool ShowsAt(const QImage& screen, const QImage& wanted, QPoint corner)
    {
        for (int row = 0; row < wanted.height(); ++row)
            if (!ShowsRow(screen, wanted, corner, row))
                return false;
        return true;
    }
};

TEST_F(CompositorTest, TheMainWindow_TakesWhatIsFree_AndIsSeenWhole_WithAllThatItWasLaidOutWith)
{
    OpenBranch(u"Smiths"_s);
    auto& view = static_cast<QMainWindow&>(ViewOf(*P.Form1));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    EXPECT_TRUE(view.isMaximized());
    EXPECT_TRUE(QTest::qWaitFor([&view] { return view.frameGeometry().height() < view.screen()->size().height(); }));
    EXPECT_EQ(view.frameGeometry().width(), view.screen()->size().width());
    const QSize needed = PixelScale().ToPixels(forms::MainWindowClient);
    EXPECT_EQ(view.centralWidget()->size().boundedTo(needed), needed);
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
