#include "qt/style/WindowInUse.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <ranges>
#include <vector>

namespace lineforge
{

namespace
{
// The one used last is the last.
std::vector<QPointer<QWindow>>& Used()
{
    static std::vector<QPointer<QWindow>> windows;
    return windows;
}

void Remember(QWindow* window)
{
    if (!window || window->type() == Qt::Popup)
        return;
    std::erase_if(Used(), [window](const QPointer<QWindow>& used) { return !used || used == window; });
    Used().emplace_back(window);
}

template <typename Predicate>
QWindow* LastUsed(const Predicate& isWanted)
{
    for (const QPointer<QWindow>& window : Used() | std::views::reverse)
        if (window && window->isVisible() && isWanted(*window))
            return window;
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (window->isVisible() && window->type() != Qt::Popup && isWanted(*window))
            return window;
    return nullptr;
}

QWidget* WidgetOf(const QWindow& window)
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    const auto found = std::ranges::find(widgets, &window, &QWidget::windowHandle);
    return found == widgets.end() ? nullptr : *found;
}
} // namespace

void FollowWindowsInUse()
{
    [[maybe_unused]] static const auto following =
        QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, qGuiApp, &Remember);
}

QWindow* LastWindowInUse()
{
    return LastUsed([](const QWindow&) { return true; });
}

QWidget* WindowInUse()
{
    if (QWidget* active = QApplication::activeWindow())
        return active;
    const QWindow* window = LastUsed(
        [](const QWindow& used) { return !used.windowStates().testFlag(Qt::WindowMinimized) && WidgetOf(used); });
    return window ? WidgetOf(*window) : nullptr;
}

} // namespace lineforge
