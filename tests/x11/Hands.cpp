#include "x11/Hands.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QWindow>

#include <stdexcept>

namespace lineforge
{

namespace
{
constexpr int patience = 30'000; // milliseconds

xcb_window_t IdOf(const QWidget& window)
{
    return static_cast<xcb_window_t>(window.winId());
}

template <class Sought>
Sought& Find(const QWidget& window, const char* name)
{
    auto* found = window.findChild<Sought*>(QLatin1StringView(name));
    if (!found)
        throw std::runtime_error(std::string("nothing of the name ") + name);
    return *found;
}
} // namespace

bool Hands::Await(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, patience);
}

// The toolkit knows it as well: what is pressed goes where it says.
bool Hands::IsInFront(const QWidget& window) const
{
    const xcb_window_t id = IdOf(window);
    return screen_.Front() == id && screen_.Active() == id && window.isActiveWindow() && !screen_.IsMinimised(id);
}

bool Hands::ComesToFront(const QWidget& window) const
{
    return Await([&] { return IsInFront(window); });
}

bool Hands::Minimises(const QWidget& window) const
{
    BringToFront(window);
    screen_.Minimise(IdOf(window));
    return Await([&] { return screen_.IsMinimised(IdOf(window)) && window.isMinimized(); });
}

// The window manager may not have met it yet, or be busy with another that has just gone.
void Hands::BringToFront(const QWidget& window) const
{
    const auto order = [&] {
        const bool isInFront = IsInFront(window);
        if (!isInFront)
            screen_.BringToFront(IdOf(window));
        return isInFront;
    };
    if (!Await(order))
        throw std::runtime_error("the window manager doesn't bring to the front " + window.objectName().toStdString());
}

void Hands::AskToClose(const QWidget& window) const
{
    screen_.AskManagerToClose(IdOf(window));
}

void Hands::Press(QWidget& window, const std::vector<const char*>& path)
{
    if (path.size() > 1)
        Choose(window, path);
    else
        Click(Find<QWidget>(window, path.front()));
}

void Hands::Click(const QWidget& widget)
{
    input_.Click(widget.mapToGlobal(widget.rect().center()));
}

void Hands::Choose(QWidget& window, const std::vector<const char*>& path)
{
    const QMenuBar& bar = *static_cast<QMainWindow&>(window).menuBar();
    QAction* action = &Find<QAction>(window, path.front());
    input_.Click(bar.mapToGlobal(bar.actionGeometry(action).center()));
    for (auto name = path.begin() + 1; name != path.end(); ++name) {
        QMenu& menu = *action->menu();
        if (!Await([&menu] { return menu.isVisible() && menu.windowHandle()->isExposed(); }))
            throw std::runtime_error(std::string("no menu opens for ") + *name);
        action = &Find<QAction>(menu, *name);
        input_.Click(menu.mapToGlobal(menu.actionGeometry(action).center()));
    }
}

} // namespace lineforge
