#include "platform/qt/ScrollBarView.h"

#include "platform/qt/Outlines.h"

#include <QEvent>
#include <QSignalBlocker>

#include <utility>

namespace lineforge
{

ScrollBarView::ScrollBarView(QWidget* parent, std::function<int()> maximum)
    : QScrollBar(Qt::Vertical, parent), maximum_(std::move(maximum)), pacer_([this] { setUpdatesEnabled(true); })
{
    setFocusPolicy(Qt::StrongFocus);
}

void ScrollBarView::Show(int value)
{
    const QSignalBlocker quiet(this);
    setUpdatesEnabled(false);
    setRange(0, maximum_());
    setValue(value);
    pacer_.Request();
}

// The maximum is asked for when it begins to matter: before the user can do anything with the bar.
bool ScrollBarView::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Enter:
    case QEvent::FocusIn:
    case QEvent::Wheel:
    case QEvent::MouseButtonPress:
        setRange(0, maximum_());
        break;
    default:
        break;
    }
    return QScrollBar::event(event);
}

// The usual styles leave it as it is.
void ScrollBarView::paintEvent(QPaintEvent* event)
{
    QScrollBar::paintEvent(event);
    PaintFocusMark(*this);
}

QScrollBar* ScrollBarIn(const QWidget& container)
{
    for (QScrollBar* bar : container.findChildren<QScrollBar*>(Qt::FindDirectChildrenOnly))
        if (!bar->isHidden() && bar->isEnabled())
            return bar;
    return nullptr;
}

QScrollBar* ScrollBarAround(const QWidget& widget)
{
    for (const QWidget* outer = widget.parentWidget(); outer; outer = outer->parentWidget())
        if (QScrollBar* bar = ScrollBarIn(*outer))
            return bar;
    return nullptr;
}

} // namespace lineforge
