#include "platform/canvas/PictureBox.h"
#include "qt/Dialogs.h"
#include "qt/WindowTest.h"
#include "qt/pictures/KeyboardPointer.h"

#include <QAccessible>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QRubberBand>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <ostream>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// A bit of everything that a user can be in the midst of.
struct BusyForm : Form {
    BusyForm() : Form(u"BusyForm", u"Busy", {6000, 4500})
    {
        List1.Items = QStringList{u"a"_s, u"b"_s};
        Drive1.Drives = QStringList{u"/"_s, u"/media"_s};
        Drive1.Drive = u"/"_s;
        Tile.Draggable = Other.Draggable = true;
        Image1.Click = [] {};
        Picture1.MouseDown = [](int, int, double, double) {};
    }
    MenuItem mnuFile{Menus, u"mnuFile", u"&File"};
    MenuItem mnuOpen{mnuFile, u"mnuOpen", u"&Open"};
    MenuItem mnuCopy{mnuFile, u"mnuCopy", u"&Copy"};
    MenuItem mnuBackup{mnuCopy, u"mnuBackup", u"&Backup"};
    MenuItem mnuHelp{Menus, u"mnuHelp", u"&Help"};

    Button Command1{*this, u"Command1", {150, 150, 975, 375}, u"&Press"};
    CheckBox Check1{*this, u"Check1", {1200, 150, 975, 315}, u"Tick"};
    OptionButton Option1{*this, u"Option1", {2250, 150, 975, 315}, u"Choose"};
    TextBox Text1{*this, u"Text1", {3300, 150, 975, 315}};
    Image Image1{*this, u"Image1", {4350, 150, 375, 375}};
    ListBox List1{*this, u"List1", {150, 600, 1500, 900}};
    DriveList Drive1{*this, u"Drive1", {1800, 600, 1500, 315}};
    ScrollBar VScroll1{*this, u"VScroll1", {5700, 0, 255, 4500}, 100, 1, 10};
    PictureBox Picture1{*this, u"Picture1", {150, 1650, 1500, 1500}};
    Image Tile{*this, u"Tile", {1800, 1650, 735, 735}};
    Image Other{*this, u"Other", {2700, 1650, 735, 735}};
    Timer Timer1{*this, u"Timer1", 1};
};

void ClickOn(QWidget& widget, QPoint at)
{
    QWidget* window = widget.window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, at));
}

void ClickOn(QWidget& widget)
{
    ClickOn(widget, widget.rect().center());
}

void PressOn(QWidget& widget)
{
    QWidget* window = widget.window();
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, widget.rect().center()));
}

class BoxWhileTest;

struct Scene {
    const char* Name;
    // What the user does, with the window's handlers that bring the box.
    void (*Play)(BoxWhileTest& test);
};
std::ostream& operator<<(std::ostream& out, const Scene& scene)
{
    return out << scene.Name;
}

enum class Outcome { GoesOn, Unloads, Ends };
std::ostream& operator<<(std::ostream& out, Outcome outcome)
{
    constexpr const char* names[] = {"GoesOn", "Unloads", "Ends"};
    return out << names[static_cast<int>(outcome)];
}

class BoxWhileTest : public WindowTest, public testing::WithParamInterface<std::tuple<Scene, Outcome>>
{
public:
    Window<BusyForm> Busy{System()};

    // The handler of this turn: asks, and then what the outcome says.
    Event Asking()
    {
        return [this] {
            ++asked_;
            Machine().Bundle().Prompts.MsgBox(u"title"_s, u"text"_s, Buttons::QuestionOkCancel);
            ++answered_;
            if (std::get<Outcome>(GetParam()) == Outcome::Unloads)
                Busy.Unload();
            if (std::get<Outcome>(GetParam()) == Outcome::Ends)
                Machine().Loop().End(0);
        };
    }
    // Once, from the event loop, whatever is under way by then.
    void AskSoon()
    {
        Busy->Timer1.Tick = [this, asking = Asking(), &timer = Busy->Timer1] {
            timer.Enabled = false;
            asking();
        };
        Busy->Timer1.Enabled = true;
    }

    QWidget& Widget(const QString& name) { return Find<QWidget>(*Busy, name); }
    QMenuBar& Bar() { return Find<QMenuBar>(*Busy, {}); }
    QAction& Action(const QString& name) { return Find<QAction>(*Busy, name); }
    void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(ViewOf(*Busy).windowHandle(), key, modifiers);
    }
    void Focus(const QString& name) { Widget(name).setFocus(Qt::TabFocusReason); }
    QWidget& View() { return ViewOf(*Busy); }
    void OpenMenu(const QString& name) { ClickOn(Bar(), Bar().actionGeometry(&Action(name)).center()); }
    void ClickInMenu(const QString& name)
    {
        QWidget& menu = *QApplication::activePopupWidget();
        ClickOn(menu, static_cast<QMenu&>(menu).actionGeometry(&Action(name)).center());
    }

protected:
    void SetUp() override
    {
        Busy->Visible = true;
        Activate(*Busy);
    }

    // In the program's own loop, until the box has been answered or the program has ended.
    void RunProgram(const Event& play)
    {
        QTimer::singleShot(0, &guard_, [this, play] {
            play();
            EXPECT_TRUE(QTest::qWaitFor([this] { return answered_ > 0; }));
            QCoreApplication::exit(0);
        });
        QApplication::exec();
    }

    int asked_ = 0;
    int answered_ = 0;

private:
    QObject guard_;
};

constexpr Scene scenes[] = {
    {"MenuOpensByMouse",
     [](BoxWhileTest& t) {
         t.Busy->mnuFile.Click = t.Asking();
         t.OpenMenu(u"mnuFile"_s);
     }},
    {"MenuOpensByKeys",
     [](BoxWhileTest& t) {
         t.Busy->mnuFile.Click = t.Asking();
         t.Type(Qt::Key_F, Qt::AltModifier);
     }},
    {"MenuOpensAndAnEntryIsTypedAtOnce",
     [](BoxWhileTest& t) {
         t.Busy->mnuFile.Click = t.Asking();
         QTest::keyClick(&t.View(), Qt::Key_F, Qt::AltModifier);
         QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_O);
     }},
    {"SubmenuOpensByMouse",
     [](BoxWhileTest& t) {
         t.Busy->mnuCopy.Click = t.Asking();
         t.OpenMenu(u"mnuFile"_s);
         t.ClickInMenu(u"mnuCopy"_s);
     }},
    {"SubmenuOpensByKeys",
     [](BoxWhileTest& t) {
         t.Busy->mnuCopy.Click = t.Asking();
         t.Type(Qt::Key_F, Qt::AltModifier);
         t.Type(Qt::Key_C);
     }},
    {"SubmenuOpensByTheResting",
     [](BoxWhileTest& t) {
         t.Busy->mnuCopy.Click = t.Asking();
         t.OpenMenu(u"mnuFile"_s);
         QWidget& menu = *QApplication::activePopupWidget();
         QTest::mouseMove(menu.windowHandle(),
                          static_cast<QMenu&>(menu).actionGeometry(&t.Action(u"mnuCopy"_s)).center());
     }},
    {"EntryOfASubmenu",
     [](BoxWhileTest& t) {
         t.Busy->mnuBackup.Click = t.Asking();
         t.OpenMenu(u"mnuFile"_s);
         t.ClickInMenu(u"mnuCopy"_s);
         t.ClickInMenu(u"mnuBackup"_s);
     }},
    {"EntryOfTheBarByMouse",
     [](BoxWhileTest& t) {
         t.Busy->mnuHelp.Click = t.Asking();
         t.OpenMenu(u"mnuHelp"_s);
     }},
    {"EntryOfTheBarByKeys",
     [](BoxWhileTest& t) {
         t.Busy->mnuHelp.Click = t.Asking();
         t.Type(Qt::Key_H, Qt::AltModifier);
     }},
    {"TimerWhileASubmenuStandsOpen",
     [](BoxWhileTest& t) {
         t.OpenMenu(u"mnuFile"_s);
         t.ClickInMenu(u"mnuCopy"_s);
         t.AskSoon();
     }},
    {"TimerWhileTheListOfDrivesStandsOpen",
     [](BoxWhileTest& t) {
         ClickOn(t.Widget(u"Drive1"_s));
         t.AskSoon();
     }},
    {"TimerWhileATileIsDragged",
     [](BoxWhileTest& t) {
         QWidget& tile = t.Widget(u"Tile"_s);
         PressOn(tile);
         const QPoint there = tile.rect().center() + QPoint(40, 0);
         QMouseEvent move(QEvent::MouseMove, there, tile.mapToGlobal(there), Qt::NoButton, Qt::LeftButton, {});
         QCoreApplication::sendEvent(&tile, &move);
         t.AskSoon();
     }},
    {"TimerWhileTheBarIsDragged",
     [](BoxWhileTest& t) {
         PressOn(t.Widget(u"VScroll1"_s));
         t.AskSoon();
     }},
    {"TimerWhileKeysHoldTheMouse",
     [](BoxWhileTest& t) {
         t.Focus(u"Picture1"_s);
         t.Type(Qt::Key_Space, Qt::ShiftModifier);
         t.AskSoon();
     }},
    {"ReleaseByAMenuThatTakesTheFocus",
     [](BoxWhileTest& t) {
         t.Busy->Picture1.MouseUp = [asking = t.Asking()](int, int, double, double) { asking(); };
         t.Focus(u"Picture1"_s);
         t.Type(Qt::Key_Space, Qt::ShiftModifier);
         t.Type(Qt::Key_F, Qt::AltModifier);
     }},
    {"ReleaseByAnotherFocus",
     [](BoxWhileTest& t) {
         t.Busy->Picture1.MouseUp = [asking = t.Asking()](int, int, double, double) { asking(); };
         t.Focus(u"Picture1"_s);
         t.Type(Qt::Key_Space, Qt::ShiftModifier);
         t.Type(Qt::Key_Tab);
     }},
    {"PressOnThePicture",
     [](BoxWhileTest& t) {
         t.Busy->Picture1.MouseDown = [asking = t.Asking()](int, int, double, double) { asking(); };
         ClickOn(t.Widget(u"Picture1"_s));
     }},
    {"ReleaseOnThePicture",
     [](BoxWhileTest& t) {
         t.Busy->Picture1.MouseUp = [asking = t.Asking()](int, int, double, double) { asking(); };
         ClickOn(t.Widget(u"Picture1"_s));
     }},
    {"DoubleClickByKey",
     [](BoxWhileTest& t) {
         t.Busy->Picture1.DblClick = t.Asking();
         t.Focus(u"Picture1"_s);
         t.Type(Qt::Key_Return);
     }},
    {"TileDroppedOnAnother",
     [](BoxWhileTest& t) {
         t.Busy->Other.DragDrop = [asking = t.Asking()](const Image&) { asking(); };
         QWidget& tile = t.Widget(u"Tile"_s);
         QWidget& other = t.Widget(u"Other"_s);
         PressOn(tile);
         QTest::mouseRelease(tile.window()->windowHandle(), Qt::LeftButton, {},
                             other.mapTo(other.window(), other.rect().center()));
     }},
    {"TileClickedByKey",
     [](BoxWhileTest& t) {
         t.Busy->Tile.DragDrop = [asking = t.Asking()](const Image&) { asking(); };
         t.Focus(u"Tile"_s);
         t.Type(Qt::Key_Return);
     }},
    {"DriveChosenByMouse",
     [](BoxWhileTest& t) {
         t.Busy->Drive1.Change = t.Asking();
         auto& box = static_cast<QComboBox&>(t.Widget(u"Drive1"_s));
         ClickOn(box);
         QWidget* list = box.view()->viewport();
         QTest::mouseMove(list, box.view()->visualRect(box.model()->index(1, 0)).center());
         ClickOn(*list, box.view()->visualRect(box.model()->index(1, 0)).center());
     }},
    {"DriveChosenByKey",
     [](BoxWhileTest& t) {
         t.Busy->Drive1.Change = t.Asking();
         t.Focus(u"Drive1"_s);
         t.Type(Qt::Key_Down);
     }},
    {"ItemClickedTwice",
     [](BoxWhileTest& t) {
         t.Busy->List1.DblClick = t.Asking();
         auto& list = static_cast<QListWidget&>(t.Widget(u"List1"_s));
         const QPoint at = list.viewport()->mapTo(list.window(), list.visualItemRect(list.item(1)).center());
         QTest::mouseDClick(list.window()->windowHandle(), Qt::LeftButton, {}, at);
     }},
    {"BarMoved",
     [](BoxWhileTest& t) {
         t.Busy->VScroll1.Change = t.Asking();
         t.Focus(u"VScroll1"_s);
         t.Type(Qt::Key_PageDown);
     }},
    {"ButtonByItsKey",
     [](BoxWhileTest& t) {
         t.Busy->Command1.Click = t.Asking();
         t.Type(Qt::Key_P, Qt::AltModifier);
     }},
    {"ButtonByEnter",
     [](BoxWhileTest& t) {
         t.Busy->Command1.Click = t.Asking();
         t.Focus(u"Command1"_s);
         t.Type(Qt::Key_Return);
     }},
    {"Tick",
     [](BoxWhileTest& t) {
         t.Busy->Check1.Click = t.Asking();
         ClickOn(t.Widget(u"Check1"_s), {8, 8});
     }},
    {"Option",
     [](BoxWhileTest& t) {
         t.Busy->Option1.Click = t.Asking();
         ClickOn(t.Widget(u"Option1"_s), {8, 8});
     }},
    {"FieldClicked",
     [](BoxWhileTest& t) {
         t.Busy->Text1.Click = t.Asking();
         ClickOn(t.Widget(u"Text1"_s));
     }},
    {"FieldClickedByKeys",
     [](BoxWhileTest& t) {
         t.Busy->Text1.Click = t.Asking();
         t.Focus(u"Text1"_s);
         t.Type(Qt::Key_Space, Qt::ControlModifier);
     }},
    {"ImageByReader",
     [](BoxWhileTest& t) {
         t.Busy->Image1.Click = t.Asking();
         QAccessible::queryAccessibleInterface(&t.Widget(u"Image1"_s))
             ->actionInterface()
             ->doAction(QAccessibleActionInterface::pressAction());
         ServeEvents();
     }},
    {"BareWindow",
     [](BoxWhileTest& t) {
         t.Busy->Click = t.Asking();
         ClickOn(t.View(), t.View().rect().bottomLeft() + QPoint(5, -5));
     }},
    {"Frame",
     [](BoxWhileTest& t) {
         t.Busy->CloseByFrame = t.Asking();
         t.View().close();
     }},
};

INSTANTIATE_TEST_SUITE_P(Scenes, BoxWhileTest,
                         testing::Combine(testing::ValuesIn(scenes),
                                          testing::Values(Outcome::GoesOn, Outcome::Unloads, Outcome::Ends)),
                         [](const auto& turn) {
                             return testing::PrintToString(std::get<Scene>(turn.param)) +
                                    testing::PrintToString(std::get<Outcome>(turn.param));
                         });

TEST_P(BoxWhileTest, TheBoxIsAnsweredOnce_AndNothingOfWhatWasUnderWayIsLeft)
{
    QStringList told;
    {
        AnsweringUser user;
        RunProgram([this] { std::get<Scene>(GetParam()).Play(*this); });
        PassEventLoop();
        told = user.Told();
    }
    EXPECT_EQ(told, QStringList{u"title: text"_s});
    EXPECT_EQ(asked_, 1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(Machine().Loop().HasEnded(), std::get<Outcome>(GetParam()) == Outcome::Ends);
    EXPECT_EQ(Busy.IsLoaded(), std::get<Outcome>(GetParam()) != Outcome::Unloads);
    if (std::get<Outcome>(GetParam()) != Outcome::GoesOn)
        return;

    // The user goes on as before, the mouse away from what it has just pressed.
    QTest::mouseMove(View().windowHandle(), View().rect().center());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Bar().activeAction(); }));
    const QRubberBand* outline = ViewOf(*Busy).findChild<QRubberBand*>();
    EXPECT_TRUE(!outline || !outline->isVisible());
    int entries = 0;
    Busy->mnuFile.Click = {};
    Busy->mnuCopy.Click = {};
    Busy->mnuBackup.Click = [&entries] { ++entries; };
    OpenMenu(u"mnuFile"_s);
    ClickInMenu(u"mnuCopy"_s);
    ClickInMenu(u"mnuBackup"_s);
    EXPECT_EQ(entries, 1);
}
} // namespace

} // namespace lineforge
