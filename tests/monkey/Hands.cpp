#include "monkey/Hands.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;

namespace
{
QWindow* WindowOf(const QWidget& widget)
{
    return widget.window()->windowHandle();
}

// Within its window, which is as far as the screen goes.
QPoint InWindow(const QWidget& widget, QPoint place)
{
    const QPoint there = widget.mapTo(widget.window(), place);
    const QSize size = widget.window()->size();
    return {std::clamp(there.x(), 1, std::max(1, size.width() - 1)),
            std::clamp(there.y(), 1, std::max(1, size.height() - 1))};
}

// Whoever takes a window in hand brings it to the front, unless a box or a menu is before it.
void Activate(const QWidget& widget)
{
    QWindow* window = WindowOf(widget);
    if (window && QGuiApplication::focusWindow() != window && !QApplication::activePopupWidget() &&
        (!QApplication::activeModalWidget() || QApplication::activeModalWidget() == widget.window()))
        window->requestActivate();
}
} // namespace

// The toolkit keeps its widgets in no order that another run could have again, but its windows it does.
QList<QWidget*> WindowsOnScreen()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    QList<QWidget*> windows;
    for (const QWindow* window : QGuiApplication::topLevelWindows())
        for (QWidget* widget : widgets)
            if (widget->windowHandle() == window && widget->isVisible())
                windows += widget;
    return windows;
}

QRect Seen(const QWidget& widget)
{
    return widget.isVisible() ? widget.visibleRegion().boundingRect() : QRect();
}

void Click(QWidget& widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    Activate(widget);
    if (QWindow* window = WindowOf(widget))
        QTest::mouseClick(window, button, keys, InWindow(widget, place));
}

void DoubleClick(QWidget& widget, QPoint place)
{
    Activate(widget);
    if (QWindow* window = WindowOf(widget))
        QTest::mouseDClick(window, Qt::LeftButton, {}, InWindow(widget, place));
}

void Press(QWidget& widget, QPoint place, Qt::KeyboardModifiers keys)
{
    Activate(widget);
    if (QWindow* window = WindowOf(widget))
        QTest::mousePress(window, Qt::LeftButton, keys, InWindow(widget, place));
}

void MoveTo(QWidget& widget, QPoint place)
{
    if (QWindow* window = WindowOf(widget))
        QTest::mouseMove(window, InWindow(widget, place));
}

void Release(QWidget& widget, QPoint place)
{
    if (QWindow* window = WindowOf(widget))
        QTest::mouseRelease(window, Qt::LeftButton, {}, InWindow(widget, place));
}

// The test library has no wheel.
void Wheel(QWidget& widget, QPoint place, int steps)
{
    constexpr int step = 120;
    QWidget* below = widget.window()->childAt(InWindow(widget, place));
    if (!below || QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return;
    const QPoint there = below->mapFrom(widget.window(), InWindow(widget, place));
    QWheelEvent event(there, below->mapToGlobal(there), {}, {0, steps * step}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(below, &event);
}

void PressKey(int key, Qt::KeyboardModifiers keys)
{
    if (QWindow* window = QGuiApplication::focusWindow())
        QTest::keyClick(window, static_cast<Qt::Key>(key), keys);
}

void Type(const QString& text)
{
    if (QWindow* window = QGuiApplication::focusWindow())
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, text, {});
}

QString NameOf(const QWidget& widget)
{
    const QWidget& window = *widget.window();
    const auto name = [](const QWidget& named) {
        return named.objectName().isEmpty() ? QString::fromLatin1(named.metaObject()->className()) : named.objectName();
    };
    return &widget == &window ? name(window) : QString(name(window) + u'.' + name(widget));
}

} // namespace lineforge::monkey
