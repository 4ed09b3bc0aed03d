#include "qt/views/ScrollBarView.h"

#include "qt/style/Outlines.h"

#include <QSignalBlocker>

namespace lineforge
{

ScrollBarView::ScrollBarView(QWidget* parent)
    : QScrollBar(Qt::Vertical, parent), pacer_([this] { setUpdatesEnabled(true); })
{
    setFocusPolicy(Qt::StrongFocus);
}

void ScrollBarView::Show(int value)
{
    const QSignalBlocker quiet(this);
    PaintWithNextFrame();
    setValue(value);
}

void ScrollBarView::TakeMaximum(int maximum)
{
    PaintWithNextFrame();
    setMaximum(maximum);
}

void ScrollBarView::PaintWithNextFrame()
{
    setUpdatesEnabled(false);
    pacer_.Request();
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
