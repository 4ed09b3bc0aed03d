#include "gui/EveryWindow.h"
#include "gui/WindowCommands.h"
#include "support/SqliteFile.h"
#include "x11/Hands.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// The whole program, on whose windows somebody else has a say.
class WindowManagerTest : public ProgramWindowTest
{
protected:
    WindowManagerTest()
    {
        BuildTwoBranches(Home);
        OpenBranchUnseen(u"Smiths"_s);
        User.BringToFront(Main());
    }

    QWidget& Main() { return ViewOf(*P.Form1); }
    // A window that a command of the main one opens.
    QWidget& Open(const std::vector<const char*>& path, Form& form)
    {
        User.Press(Main(), path);
        EXPECT_TRUE(Hands::Await([&] { return System().WidgetOf(form) != nullptr; }));
        EXPECT_TRUE(User.ComesToFront(ViewOf(form)));
        return ViewOf(form);
    }

    Hands User;
};

TEST_F(WindowManagerTest, EnterInTheListOfBranches_OpensTheOneThatIsChosen)
{
    QWidget& list = Open({"mnuFile", "Open"}, *P.Form8);
    EXPECT_TRUE(list.isVisible());
    User.Press(tour::Key::Down);
    ASSERT_TRUE(Hands::Await([&] { return P.Form8->List1.Text() == u"Jones"; }))
        << qUtf8Printable(P.Form8->List1.Text());
    User.Press(tour::Key::Return);
    EXPECT_TRUE(Hands::Await([&] { return P.Form1->Caption.value() == u"Lineforge Jones Tree Branch."; }));
    EXPECT_FALSE(list.isVisible());
    EXPECT_TRUE(User.ComesToFront(Main()));
}

// What asks to be closed is the window manager; what follows is the program's.
TEST_F(WindowManagerTest, TheRecordThatIsClosed_LeadsToTheTree_WithTheForenameThatWasTyped)
{
    QWidget& record = Open({"Command1"}, *P.Form3);
    auto& forename = Find<QLineEdit>(*P.Form3, u"Text3"_s);
    User.Click(forename);
    ASSERT_TRUE(Hands::Await([&] { return forename.hasFocus(); }));
    User.Type(u"an"_s);
    ASSERT_TRUE(Hands::Await([&] { return forename.text().size() == 6; })) << qUtf8Printable(forename.text());
    const QString typed = forename.text();
    User.AskToClose(record);
    EXPECT_TRUE(User.ComesToFront(Main()));
    EXPECT_FALSE(record.isVisible());
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::Forename].Text(), typed);
    EXPECT_EQ(Find<QLabel>(*P.Form1, u"Label9"_s).text(), typed);
}

TEST_F(WindowManagerTest, TheGalleryThatIsClosed_LeadsToTheTree)
{
    QWidget& gallery = Open({"Command2"}, *P.Form5);
    EXPECT_FALSE(Main().isVisible());
    User.AskToClose(gallery);
    EXPECT_TRUE(User.ComesToFront(Main()));
    EXPECT_FALSE(gallery.isVisible());
}

TEST_F(WindowManagerTest, TheComparisonThatIsClosed_TakesItsButtonAlong)
{
    QWidget& comparison = Open({"mnuEdit", "mnuDataBase", "mnuComp"}, *P.Form6);
    EXPECT_TRUE(Find<QAbstractButton>(*P.Form1, u"Command5"_s).isVisible());
    User.AskToClose(comparison);
    EXPECT_TRUE(User.ComesToFront(Main()));
    EXPECT_FALSE(P.Form6.IsLoaded());
    EXPECT_FALSE(Find<QAbstractButton>(*P.Form1, u"Command5"_s).isVisible());
}

TEST_F(WindowManagerTest, TheListOfBranchesThatIsClosed_GoesAndLeavesTheBranch)
{
    User.AskToClose(Open({"mnuFile", "Open"}, *P.Form8));
    EXPECT_TRUE(User.ComesToFront(Main()));
    EXPECT_FALSE(P.Form8.IsLoaded());
    EXPECT_EQ(P.Form1->Caption.value(), u"Lineforge Smiths Tree Branch.");
}

TEST_F(WindowManagerTest, TheMainWindowThatIsClosed_StoresWhatIsTyped_AndEndsTheProgram)
{
    Open({"Command1"}, *P.Form3);
    auto& surname = Find<QLineEdit>(*P.Form3, u"Text2"_s);
    User.Click(surname);
    ASSERT_TRUE(Hands::Await([&] { return surname.hasFocus(); }));
    User.Type(u"on"_s);
    ASSERT_TRUE(Hands::Await([&] { return surname.text().size() == 7; })) << qUtf8Printable(surname.text());
    const QString typed = surname.text();
    User.BringToFront(Main());
    User.AskToClose(Main());
    EXPECT_TRUE(Hands::Await([&] { return !P.Form3.IsLoaded(); }));
    EXPECT_THROW(P.Loop.DoEvents(), ProgramEnded);
    const QByteArray stored = "SELECT Surname FROM Tree99 WHERE File = 'A001'";
    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Value(stored), typed);
}

// Every window, on a screen whose edges are somebody else's.
class WorkAreaTest : public EveryWindowTest
{
protected:
    const ManagedScreen Screen;
};

INSTANTIATE_TEST_SUITE_P(Windows, WorkAreaTest, testing::ValuesIn(every_window::all), NameOf);

TEST_P(WorkAreaTest, IsKeptWithItsFrame)
{
    const QRect area = Screen.WorkArea();
    ASSERT_EQ(area, QRect(QPoint(), Screen.Size()).adjusted(48, 24, -12, -36));
    const auto id = static_cast<xcb_window_t>(Open().winId());
    EXPECT_TRUE(Hands::Await([&] { return area.contains(Screen.PlaceWithFrame(id)); }))
        << testing::PrintToString(Screen.PlaceWithFrame(id));
}

class ManagedCommandTest : public WindowCommandTest
{
protected:
    bool ComesToFront(QWidget& window) override { return User.ComesToFront(window); }
    void PutInFront(QWidget& window) override { User.BringToFront(window); }
    void Press(QWidget& window, const std::vector<const char*>& path) override { User.Press(window, path); }

    Hands User;
};

INSTANTIATE_TEST_SUITE_P(Commands, ManagedCommandTest, testing::ValuesIn(window_commands::all), NameOfCommand);

TEST_P(ManagedCommandTest, AWindowThatIsBehind_ComesToTheFront)
{
    ASSERT_NO_FATAL_FAILURE(OpenWindow());
    PutInFront(Asking());
    GiveCommand();
    EXPECT_TRUE(ComesToFront(AskedFor()));
}

TEST_P(ManagedCommandTest, AWindowThatIsMinimised_ComesBackToTheFront)
{
    ASSERT_NO_FATAL_FAILURE(OpenWindow());
    ASSERT_TRUE(User.Minimises(AskedFor()));
    GiveCommand();
    EXPECT_TRUE(ComesToFront(AskedFor()));
}

} // namespace
} // namespace lineforge
