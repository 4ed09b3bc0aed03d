#include "monkey/Moves.h"

#include "monkey/Hands.h"
#include "monkey/Journal.h"
#include "qt/QtPlatform.h"
#include "support/Clocks.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

namespace
{
constexpr QStringView mainWindow = u"Form1";

QString At(QPoint place)
{
    return u" at %1,%2"_s.arg(place.x()).arg(place.y());
}

void Drag(QWidget& widget, const QList<QPoint>& way, Qt::KeyboardModifiers keys = {})
{
    const QPointer<QWidget> dragged = &widget;
    Press(widget, way.first(), keys);
    for (const QPoint place : way.sliced(1))
        if (dragged)
            MoveTo(*dragged, place);
    if (dragged)
        Release(*dragged, way.last());
}
} // namespace

// What a user can do, how often compared with the rest, and when.
struct Moves::Kind {
    int Weight;
    bool (Moves::*IsPossible)() const;
    void (Moves::*Do)();
};

const std::vector<Moves::Kind>& Moves::Kinds()
{
    static const std::vector<Kind> kinds{
        {26, &Moves::SeesWindow, &Moves::ClickControl},   {3, &Moves::SeesWindow, &Moves::DoubleClickControl},
        {4, &Moves::HoldsNothing, &Moves::DragControl},   {20, &Moves::SeesMenus, &Moves::ChooseCommand},
        {60, &Moves::SeesNoBranch, &Moves::ChooseOpen},   {60, &Moves::SeesBranches, &Moves::OpenOfList},
        {12, &Moves::SeesTextBoxes, &Moves::TypeIntoBox}, {8, &Moves::SeesWindow, &Moves::PressAnyKey},
        {12, &Moves::SeesMap, &Moves::DrawOnMap},         {4, &Moves::SeesMap, &Moves::ClickMap},
        {7, &Moves::SeesMap, &Moves::DoubleClickMap},     {1, &Moves::HoldsNothing, &Moves::HoldButton},
        {15, &Moves::HoldsButton, &Moves::MoveHeld},      {15, &Moves::HoldsButton, &Moves::LetGo},
        {2, &Moves::SeesWindow, &Moves::TurnWheel},       {3, &Moves::SeesWindow, &Moves::GoToWindow},
        {1, &Moves::SeesWindow, &Moves::CloseByFrame},    {6, &Moves::SeesWindow, &Moves::Wait},
    };
    return kinds;
}

void Moves::Any()
{
    std::vector<Kind> possible;
    std::ranges::copy_if(Kinds(), std::back_inserter(possible),
                         [this](const Kind& kind) { return (this->*kind.IsPossible)(); });
    if (possible.empty())
        return Wait();
    (this->*chance_.OneByWeight(possible).Do)();
}

void Moves::InMenu(QMenu& menu)
{
    QList<QAction*> open;
    std::ranges::copy_if(menu.actions(), std::back_inserter(open),
                         [](const QAction* action) { return !action->isSeparator() && action->isEnabled(); });
    if (open.isEmpty() || chance_.Percent(6)) {
        journal_.Step(u"Escape in menu "_s + menu.objectName());
        return PressKey(Qt::Key_Escape);
    }
    if (chance_.Percent(6))
        return ClickControl();
    if (chance_.Percent(4))
        return PressAnyKey();
    if (chance_.Percent(4))
        return Wait();
    const auto wanted = std::ranges::find_if(open, [this](QAction* action) { return LeadsTo(action, wanted_); });
    QAction* chosen = wanted != open.end() && chance_.Percent(90) ? *wanted : chance_.OneOf(open);
    const QPoint place = menu.actionGeometry(chosen).center();
    journal_.Step(u"choose "_s + chosen->objectName() + u" in menu " + menu.objectName());
    Click(menu, place);
}

void Moves::InList(QWidget& list)
{
    if (chance_.OneIn(2)) {
        journal_.Step(u"Escape in a list"_s);
        return PressKey(Qt::Key_Escape);
    }
    const QPoint place = sight_.PlaceOn(list);
    journal_.Step(u"choose in a list"_s + At(place));
    Click(list, place);
}

void Moves::ToLeave()
{
    static const QString exit = u"mnuExit"_s;
    if (QWidget* popup = QApplication::activePopupWidget()) {
        auto* menu = qobject_cast<QMenu*>(popup);
        if (menu && wanted_ == exit)
            return InMenu(*menu);
        return chance_.OneIn(2) ? ClickControl() : PressKey(Qt::Key_Escape);
    }
    if (held_)
        return LetGo();
    if (!SeesWindow())
        return Wait();
    QWidget& window = sight_.AnyWindow();
    if (MenuBarOf(window) && chance_.OneIn(2))
        GoFor(window, exit);
    else
        Close(window);
}

bool Moves::SeesWindow() const
{
    return !WindowsOnScreen().isEmpty();
}

void Moves::ClickControl()
{
    QWidget& control = sight_.AnyControl(sight_.AnyWindow());
    const QPoint place = sight_.PlaceOn(control);
    const bool isRight = chance_.OneIn(25);
    const Qt::KeyboardModifiers keys = chance_.OneIn(20) ? Qt::ShiftModifier : Qt::NoModifier;
    journal_.Step(u"click "_s + (isRight ? u"right on " : u"") + NameOf(control) + At(place));
    Click(control, place, isRight ? Qt::RightButton : Qt::LeftButton, keys);
}

void Moves::DoubleClickControl()
{
    QWidget& control = sight_.AnyControl(sight_.AnyWindow());
    const QPoint place = sight_.PlaceOn(control);
    journal_.Step(u"double-click "_s + NameOf(control) + At(place));
    DoubleClick(control, place);
}

// From one control of a window to another one.
void Moves::DragControl()
{
    QWidget& window = sight_.AnyWindow();
    QWidget& control = sight_.AnyControl(window);
    const QPoint from = sight_.PlaceOn(control);
    const QWidget& other = sight_.AnyControl(window);
    const QPoint to = control.mapFrom(&window, other.mapTo(&window, sight_.PlaceOn(other)));
    journal_.Step(u"drag "_s + NameOf(control) + At(from) + u" to " + NameOf(other) + At(to));
    Drag(control, {from, (from + to) / 2, to});
}

void Moves::ChooseCommand()
{
    QList<QWidget*> windows = WindowsOnScreen();
    windows.removeIf([](const QWidget* window) { return !MenuBarOf(*window); });
    QWidget* window =
        windows.contains(QApplication::activeWindow()) ? QApplication::activeWindow() : chance_.OneOf(windows);
    const QList<QAction*> commands = CommandsOf(MenuBarOf(*window)->actions());
    if (commands.isEmpty())
        return Wait();
    GoFor(*window, AnyCommand(commands));
}

// Now and then rather one that changes something on the disk, and seldom one that takes away what others work on.
QString Moves::AnyCommand(const QList<QAction*>& commands)
{
    static const QStringList working{u"New"_s,           u"mnuBackup"_s,      u"mnuTxtFileList"_s, u"mnuTxtDBase"_s,
                                     u"mnuExpSub"_s,     u"mnuExpGedcom"_s,   u"mnuImpSub"_s,      u"mnuImpGedcom"_s,
                                     u"mnuTreeTools"_s,  u"mnuMapSubject"_s,  u"mnuRemap"_s,       u"mnuAdd"_s,
                                     u"mnuSubPicture"_s, u"MnuRecTransfer"_s, u"mnuPic"_s,         u"mnuTxt"_s,
                                     u"MnuDeleteFile"_s, u"mnuOpen"_s};
    static const QStringList taking{u"mnuExit"_s, u"mnuCloseDB"_s, u"mnuDelSub"_s, u"mnuDelete"_s, u"mnuClose"_s};
    const auto any = [&] { return chance_.OneOf(commands)->objectName(); };
    QString command = any();
    if (chance_.OneIn(3))
        for (int again = 0; again < 5 && !working.contains(command); ++again)
            command = any();
    return taking.contains(command) && !chance_.OneIn(5) ? any() : command;
}

void Moves::ChooseOpen()
{
    GoFor(*sight_.Map()->window(), u"Open"_s);
}

void Moves::OpenOfList()
{
    auto& list = *qobject_cast<QAbstractScrollArea*>(sight_.ListOfBranches());
    const QPoint place = sight_.PlaceOn(list);
    journal_.Step(u"double-click the list of branches"_s + At(place));
    DoubleClick(*list.viewport(), place);
}

// Opens the menu that the command is in, or any other where it is in none.
void Moves::GoFor(QWidget& window, const QString& command)
{
    QMenuBar& bar = *MenuBarOf(window);
    wanted_ = command;
    const QList<QAction*> menus = bar.actions();
    const auto found = std::ranges::find_if(menus, [&](QAction* menu) { return LeadsTo(menu, command); });
    QAction* menu = found == menus.end() ? chance_.OneOf(menus) : *found;
    const QPoint place = bar.actionGeometry(menu).center();
    journal_.Step(u"open menu "_s + window.objectName() + u'.' + menu->objectName() + u", for " + command);
    Click(bar, place);
}

void Moves::TypeIntoBox()
{
    const QList<QWidget*> boxes = TextBoxesOf(sight_.AnyWindow());
    if (boxes.isEmpty())
        return Wait();
    QWidget& box = *chance_.OneOf(boxes);
    const QString text = TypedText(chance_);
    const bool replaces = chance_.OneIn(2);
    journal_.Step(u"type into "_s + NameOf(box) + (replaces ? u", for what is there: " : u": ") + text);
    Click(box, sight_.PlaceOn(box));
    if (replaces)
        PressKey(Qt::Key_A, Qt::ControlModifier);
    Type(text);
    if (chance_.OneIn(3))
        PressKey(chance_.OneIn(2) ? Qt::Key_Tab : Qt::Key_Return);
}

void Moves::PressAnyKey()
{
    struct Stroke {
        int Key;
        Qt::KeyboardModifiers With = {};
    };
    static const Stroke strokes[] = {{Qt::Key_Tab},
                                     {Qt::Key_Tab},
                                     {Qt::Key_Backtab, Qt::ShiftModifier},
                                     {Qt::Key_Return},
                                     {Qt::Key_Space},
                                     {Qt::Key_Space, Qt::ShiftModifier},
                                     {Qt::Key_Space, Qt::ControlModifier},
                                     {Qt::Key_Escape},
                                     {Qt::Key_Left},
                                     {Qt::Key_Right},
                                     {Qt::Key_Up},
                                     {Qt::Key_Down},
                                     {Qt::Key_Down, Qt::ShiftModifier},
                                     {Qt::Key_PageUp},
                                     {Qt::Key_PageDown},
                                     {Qt::Key_Home},
                                     {Qt::Key_End},
                                     {Qt::Key_End, Qt::ShiftModifier},
                                     {Qt::Key_Delete},
                                     {Qt::Key_Backspace},
                                     {Qt::Key_F1},
                                     {Qt::Key_F10},
                                     {Qt::Key_A, Qt::ControlModifier},
                                     {Qt::Key_C, Qt::ControlModifier},
                                     {Qt::Key_X, Qt::ControlModifier},
                                     {Qt::Key_V, Qt::ControlModifier},
                                     {Qt::Key_Z, Qt::ControlModifier}};
    const bool isAccess = chance_.OneIn(5);
    const Stroke stroke = isAccess ? Stroke{Qt::Key_A + chance_.Below(26), Qt::AltModifier} : chance_.OneOf(strokes);
    journal_.Step(u"press "_s +
                  QKeySequence(QKeyCombination(stroke.With, static_cast<Qt::Key>(stroke.Key))).toString());
    PressKey(stroke.Key, stroke.With);
}

void Moves::DrawOnMap()
{
    constexpr int near = 60; // pixels
    const QPoint from = sight_.PlaceOnMap();
    QList<QPoint> way{from};
    for (int moves = chance_.Below(5); moves >= 0; --moves)
        way += chance_.OneIn(3) ? sight_.PlaceOnMap()
                                : way.last() + QPoint{chance_.Between(-near, near), chance_.Between(-near, near)};
    const bool isShifted = chance_.OneIn(6);
    journal_.Step(u"draw on the map"_s + At(from) + u" to" + At(way.last()) + (isShifted ? u" with Shift" : u""));
    Drag(*sight_.Map(), way, isShifted ? Qt::ShiftModifier : Qt::NoModifier);
}

void Moves::ClickMap()
{
    const QPoint place = sight_.PlaceOnMap();
    journal_.Step(u"click the map"_s + At(place));
    Click(*sight_.Map(), place);
}

void Moves::DoubleClickMap()
{
    const QPoint place = sight_.PlaceOnMap();
    journal_.Step(u"double-click the map"_s + At(place));
    DoubleClick(*sight_.Map(), place);
}

// What is begun here ends in another turn, whatever comes between.
void Moves::HoldButton()
{
    held_ = sight_.Map() && chance_.OneIn(2) ? sight_.Map() : &sight_.AnyControl(sight_.AnyWindow());
    const QPoint place = sight_.PlaceOn(*held_);
    journal_.Step(u"hold the button down on "_s + NameOf(*held_) + At(place));
    Press(*held_, place);
}

void Moves::MoveHeld()
{
    const QPoint place = sight_.PlaceOn(*held_);
    journal_.Step(u"move to"_s + At(place));
    MoveTo(*held_, place);
}

void Moves::LetGo()
{
    QWidget& held = *held_;
    const QPoint place = sight_.PlaceOn(held);
    journal_.Step(u"let the button go"_s + At(place));
    held_ = nullptr;
    Release(held, place);
}

void Moves::TurnWheel()
{
    QWidget& window = sight_.AnyWindow();
    const QWidget& control = sight_.AnyControl(window);
    const QPoint place = control.mapTo(&window, sight_.PlaceOn(control));
    const int steps = chance_.OneIn(2) ? -chance_.Between(1, 5) : chance_.Between(1, 5);
    journal_.Step(u"turn the wheel on %1 by %2"_s.arg(NameOf(control)).arg(steps));
    Wheel(window, place, steps);
}

void Moves::GoToWindow()
{
    QWidget& window = *chance_.OneOf(WindowsOnScreen());
    journal_.Step(u"go to "_s + NameOf(window));
    window.activateWindow();
}

void Moves::CloseByFrame()
{
    QWidget& window = sight_.AnyWindow();
    if (window.objectName() == mainWindow && !chance_.OneIn(6))
        return Wait();
    Close(window);
}

void Moves::Close(QWidget& window)
{
    journal_.Step(u"close "_s + NameOf(window) + u" by its frame");
    isClosing_ = window.objectName() == mainWindow;
    window.close();
    isClosing_ = isClosing_ && machine_.Loop().HasEnded();
}

void Moves::Wait()
{
    const int time = chance_.Between(50, chance_.OneIn(4) ? 3000 : 300);
    journal_.Step(u"wait %1 ms"_s.arg(time));
    LetTimePass(milliseconds(time));
}

} // namespace lineforge::monkey
