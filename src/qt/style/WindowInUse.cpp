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
std::vector<QPointer<QWidget>>& Used()
{
    static std::vector<QPointer<QWidget>> windows;
    return windows;
}

void Remember(const QWindow* focused)
{
    QWidget* window = focused ? QWidget::find(focused->winId()) : nullptr;
    if (!window || window->windowType() == Qt::Popup)
        return;
    std::erase_if(Used(), [window](const QPointer<QWidget>& used) { return !used || used == window; });
    Used().emplace_back(window);
}

template <typename Predicate>
QWidget* LastUsed(const Predicate& isWanted)
{
    for (const QPointer<QWidget>& window : Used() | std::views::reverse)
        if (window && window->isVisible() && isWanted(*window))
            return window;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() != Qt::Popup && isWanted(*window))
            return window;
    return nullptr;
}
} // namespace

void FollowWindowsInUse()
{
    [[maybe_unused]] static const auto following =
        QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, qGuiApp, &Remember);
}

QWidget* LastWindowInUse()
{
    return LastUsed([](const QWidget&) { return true; });
}

QWidget* WindowInUse()
{
    if (QWidget* active = QApplication::activeWindow())
        return active;
    return LastUsed([](const QWidget& window) { return !window.isMinimized(); });
}

} // namespace lineforge
