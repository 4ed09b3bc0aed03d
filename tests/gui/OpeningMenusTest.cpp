#include "gui/EveryWindow.h"
#include "gui/MenuPaths.h"
#include "map/tools/ToolSelection.h"
#include "program/branch/SiblingBranch.h"
#include "qt/Dialogs.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/RunHandler.h"

#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// What the user has done before a menu is opened.
struct State {
    const char* Name;
    void (*BringAbout)(Program& p);
    bool HasBranch = true;
    bool LeavesOthers = true; // windows beside the main one
};

void OpenTools(Program& p)
{
    if (p.Tools.ToolMode != ToolsOpen)
        p.Form1->mnuTreeTools.Click();
}

constexpr State noBranch{"NoBranch", [](Program&) {}, false, false};
constexpr State branchOpen{"BranchOpen", [](Program&) {}};
constexpr State closed{"Closed", [](Program& p) { p.Form1->mnuCloseDB.Click(); }, true, false};
constexpr State alternateRecord{"AlternateRecord", [](Program& p) {
                                    if (p.Branch.UsingAlternate == 0)
                                        SwitchToSibling(p, u"B");
                                }};
constexpr State toolsOpen{"ToolsOpen", OpenTools};
constexpr State toolInHand{"ToolInHand", [](Program& p) {
                               OpenTools(p);
                               if (p.Tools.ToolSel == ToolSelection::None)
                                   p.Form1->Image6.Click();
                           }};
constexpr const State* states[] = {&noBranch, &branchOpen, &closed, &alternateRecord, &toolsOpen, &toolInHand};

// A box that the opening of a menu brings.
struct Told {
    const State* When;
    QStringView Window;
    QStringView Menu;
    QStringView Words;
};

constexpr QStringView noDatabase = u"Data not available: Cannot View until database file is Opened";
constexpr QStringView saveMap = u"Closing Graphics Tools: Save the Tree Graphic changes ?";

constexpr Told boxes[] = {
    {&closed, u"Form1", u"mnuDataBase", noDatabase},
    {&toolInHand, u"Form1", u"mnuEdit", saveMap},
    {&toolInHand, u"Form1", u"mnuTreeGraphics", saveMap},
    {&alternateRecord, u"Form3", u"mnuSearch",
     u"Search Alternate Tree Branch Records.: This Record is from another Tree Branch. You must open \n"
     u"that Tree Branch to Search the Records of the Database. "},
};

// By what the user opens menus.
class Hand
{
public:
    Hand(QWidget& window, const std::vector<MenuItem*>& menus) : window_(window), menus_(menus) {}
    virtual ~Hand() = default;
    // The last menu of the path; those above it are open.
    virtual void Open(const MenuPath& path) = 0;

protected:
    QWidget& Window() const { return window_; }
    const std::vector<MenuItem*>& Menus() const { return menus_; }
    QMenuBar& Bar() const { return *window_.findChild<QMenuBar*>(); }
    QAction* ActionOf(const MenuItem& item) const { return window_.findChild<QAction*>(item.Name); }
    static QMenu* OpenMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

private:
    QWidget& window_;
    const std::vector<MenuItem*>& menus_;
};

class MouseHand : public Hand
{
public:
    using Hand::Hand;
    void Open(const MenuPath& path) override
    {
        QAction* action = ActionOf(*path.back());
        if (path.size() == 1)
            Press(Bar(), Bar().actionGeometry(action));
        else
            Press(*OpenMenu(), OpenMenu()->actionGeometry(action));
    }

private:
    static void Press(const QWidget& menu, const QRect& place)
    {
        QWindow* window = menu.window()->windowHandle();
        const QPoint at = menu.mapTo(menu.window(), place.center());
        QTest::mouseMove(window, at);
        QTest::mouseClick(window, Qt::LeftButton, {}, at);
    }
};

class KeyHand : public Hand
{
public:
    using Hand::Hand;
    void Open(const MenuPath& path) override
    {
        if (path.size() == 1) {
            Type(Qt::Key_Alt);
            MarkBy(Qt::Key_Right, Bar(), path);
            Type(Qt::Key_Down);
        } else {
            MarkBy(Qt::Key_Down, *OpenMenu(), path);
            Type(Qt::Key_Right);
        }
    }

private:
    void Type(Qt::Key key) { QTest::keyClick(Window().windowHandle(), key); }

    template <class Menu>
    void MarkBy(Qt::Key key, const Menu& menu, const MenuPath& path)
    {
        const QAction* wanted = ActionOf(*path.back());
        for (qsizetype pressed = 0; menu.activeAction() != wanted && pressed < menu.actions().size(); ++pressed)
            Type(key);
    }
};

class ReaderHand : public Hand
{
public:
    using Hand::Hand;
    void Open(const MenuPath& path) override
    {
        ItemTold(Window(), Menus(), path)->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    }
};

struct Way {
    const char* Name;
    std::unique_ptr<Hand> (*Of)(QWidget& window, const std::vector<MenuItem*>& menus);
};

template <class Kind>
std::unique_ptr<Hand> Make(QWidget& window, const std::vector<MenuItem*>& menus)
{
    return std::make_unique<Kind>(window, menus);
}

constexpr Way ways[] = {{"Mouse", Make<MouseHand>}, {"Keys", Make<KeyHand>}, {"Reader", Make<ReaderHand>}};

struct Turn {
    const ProgramWindow* Window;
    const State* When;
    const Way* By;
};

std::ostream& operator<<(std::ostream& out, const Turn& turn)
{
    return out << turn.Window->Name << turn.When->Name << turn.By->Name;
}

std::vector<Turn> AllTurns()
{
    std::vector<Turn> turns;
    for (const ProgramWindow& window : every_window::withMenus)
        for (const State* state : states)
            for (const Way& way : ways)
                if (state->LeavesOthers || &window == &every_window::withMenus[0])
                    turns.push_back({&window, state, &way});
    return turns;
}

// Real windows with real handlers and real boxes, which a user answers that reads them.
class MenuUserTest : public ProgramWindowTest
{
protected:
    MenuUserTest() : ProgramWindowTest(BoxesGoTo::Screen)
    {
        BuildTwoBranches(Home);
        System().RunHandler = [this](const Event& handler) { RunHandler(P, handler); };
    }

    // From the closed bar down to the last menu, as far as there is one.
    void OpenAll(const Way& way, const Form& form, const MenuPath& path)
    {
        const std::unique_ptr<Hand> hand = way.Of(ViewOf(form), form.Menus);
        for (std::size_t level = 1; level <= path.size(); ++level) {
            if (level > 1 && !QApplication::activePopupWidget())
                return;
            hand->Open(MenuPath(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(level)));
            ServeEvents();
        }
    }

    void CloseMenus(const Form& form)
    {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        QTest::keyClick(ViewOf(form).windowHandle(), Qt::Key_Escape);
    }

    AnsweringUser Answers;
};

class OpeningMenusTest : public MenuUserTest, public testing::WithParamInterface<Turn>
{
protected:
    OpeningMenusTest()
    {
        if (When().HasBranch) {
            OpenBranch(u"Smiths"_s);
        } else {
            InstallHandlers(P);
            StartProgram(P);
        }
        Opened = &GetParam().Window->Open(P);
        ServeEvents();
    }

    static const State& When() { return *GetParam().When; }

    // As it stands before a menu is opened, whatever opening the last one has changed.
    void BringStateAbout()
    {
        When().BringAbout(P);
        Activate(*Opened);
        Answers.Told();
    }

    // Those that opening one menu after the other brings, up to the first: it takes the menus away.
    QStringList BoxesOf(const MenuPath& path) const
    {
        for (const MenuItem* menu : path)
            for (const Told& box : boxes)
                if (box.When == &When() && box.Window == Opened->Name && box.Menu == menu->Name)
                    return {box.Words.toString()};
        return {};
    }

    static bool IsReachable(const MenuPath& path)
    {
        return std::ranges::all_of(path, [](const MenuItem* menu) { return menu->Enabled.value(); });
    }

    Form* Opened;
};

INSTANTIATE_TEST_SUITE_P(Turns, OpeningMenusTest, testing::ValuesIn(AllTurns()),
                         [](const auto& turn) { return testing::PrintToString(turn.param); });

TEST_P(OpeningMenusTest, EveryMenu_Opens_OrTellsWhyNot)
{
    ForEachItem(Opened->Menus, [this](const MenuPath& path) {
        if (path.back()->Items.empty())
            return;
        SCOPED_TRACE(path.back()->Name.toStdString());
        BringStateAbout();
        const QWidget* focus = ViewOf(*Opened).focusWidget();
        const QStringList expected = IsReachable(path) ? BoxesOf(path) : QStringList();

        OpenAll(*GetParam().By, *Opened, path);

        EXPECT_EQ(Answers.Told(), expected);
        const bool stands = IsReachable(path) && expected.isEmpty();
        EXPECT_EQ(Find<QMenu>(*Opened, path.back()->Name).isVisible(), stands);
        CloseMenus(*Opened);
        EXPECT_EQ(Find<QMenuBar>(*Opened, {}).activeAction(), nullptr);
        EXPECT_EQ(ViewOf(*Opened).focusWidget(), focus);
    });
    EXPECT_FALSE(Machine().Loop().HasEnded());
}

// What the opening of a menu does, besides that it opens.
struct Effect {
    const char* Name;
    const ProgramWindow* Window;
    QStringView Menu;
    void (*Prepare)(Program& p);
    bool (*IsDone)(Program& p);
};
std::ostream& operator<<(std::ostream& out, const Effect& effect)
{
    return out << effect.Name;
}

const ProgramWindow& map = every_window::withMenus[0];
const ProgramWindow& records = every_window::withMenus[2];
const ProgramWindow& gallery = every_window::withMenus[3];

void ShowSplash(Program& p)
{
    p.form9->Show();
}

bool IsSplashGone(Program& p)
{
    return !p.form9.IsLoaded();
}

void BeginRepositioning(Program& p)
{
    p.Tools.MapCursorMode = MapCursor::Repositioning;
}

bool IsCursorUsual(Program& p)
{
    return p.Tools.MapCursorMode == MapCursor::Normal;
}

bool IsBarOff(Program& p)
{
    return !p.Form3->Data1.Enabled;
}

void Nothing(Program&) {}

const Effect effects[] = {
    {"FileDismissesTheSplash", &map, u"mnuFile", ShowSplash, IsSplashGone},
    {"HelpDismissesTheSplash", &map, u"mnuHelp", ShowSplash, IsSplashGone},
    {"FileGivesUpTheCross", &map, u"mnuFile", BeginRepositioning, IsCursorUsual},
    {"HelpGivesUpTheCross", &map, u"mnuHelp", BeginRepositioning, IsCursorUsual},
    {"EditGivesUpTheCross", &map, u"mnuEdit", BeginRepositioning, IsCursorUsual},
    {"TreeGraphicsGivesUpTheCross", &map, u"mnuTreeGraphics", BeginRepositioning, IsCursorUsual},
    {"EditClosesTheTools", &map, u"mnuEdit", toolInHand.BringAbout, [](Program& p) { return p.Tools.ToolMode == 0; }},
    {"PrintTurnsTheBarOff", &records, u"mnuPrint", Nothing, IsBarOff},
    {"EditTurnsTheBarOff", &records, u"mnuEdit", Nothing, IsBarOff},
    {"SearchTurnsTheBarOff", &records, u"mnuSearch", Nothing, IsBarOff},
    {"EditCancelsTheDeletion", &gallery, u"mnuEdit", [](Program& p) { p.Scratch.ScanState = GalleryScan::Deleting; },
     [](Program& p) { return p.Scratch.ScanState == 0; }},
};

class MenuEffectTest : public MenuUserTest, public testing::WithParamInterface<std::tuple<Effect, Way>>
{
protected:
    MenuEffectTest()
    {
        OpenBranch(u"Smiths"_s);
        Opened = &What().Window->Open(P);
        What().Prepare(P);
        ServeEvents();
        Activate(*Opened);
    }

    static const Effect& What() { return std::get<Effect>(GetParam()); }

    MenuPath PathTo(QStringView name) const
    {
        MenuPath found;
        ForEachItem(Opened->Menus, [&](const MenuPath& path) {
            if (path.back()->Name == name)
                found = path;
        });
        return found;
    }

    Form* Opened;
};

INSTANTIATE_TEST_SUITE_P(Ways, MenuEffectTest, testing::Combine(testing::ValuesIn(effects), testing::ValuesIn(ways)),
                         [](const auto& turn) {
                             return std::string(std::get<Effect>(turn.param).Name) + std::get<Way>(turn.param).Name;
                         });

TEST_P(MenuEffectTest, ComesWithTheOpening)
{
    EXPECT_FALSE(What().IsDone(P));
    OpenAll(std::get<Way>(GetParam()), *Opened, PathTo(What().Menu));
    EXPECT_TRUE(What().IsDone(P));
    EXPECT_EQ(Find<QMenu>(*Opened, What().Menu.toString()).isVisible(), Answers.Told().isEmpty());
    CloseMenus(*Opened);
}

// A reader may press an entry without opening the menus above it.
class ReaderPressTest : public MenuEffectTest
{
};

INSTANTIATE_TEST_SUITE_P(Effects, ReaderPressTest,
                         testing::Combine(testing::ValuesIn(effects), testing::Values(ways[2])),
                         [](const auto& turn) { return std::string(std::get<Effect>(turn.param).Name); });

TEST_P(ReaderPressTest, ComesBeforeAnEntryThatIsPressedWithoutTheMenu)
{
    bool wasDone = false;
    MenuPath path = PathTo(What().Menu);
    path.push_back(path.back()->Items.front());
    while (!path.back()->Items.empty())
        path.push_back(path.back()->Items.front());
    path.back()->Click = [&] { wasDone = What().IsDone(P); };
    ItemTold(ViewOf(*Opened), Opened->Menus, path)
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    ServeEvents();
    EXPECT_TRUE(wasDone);
}

} // namespace
} // namespace lineforge
