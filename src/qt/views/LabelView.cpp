#include "qt/views/LabelView.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace lineforge
{

LabelView::LabelView(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

// Half a line spare isn't worth a second line that would be cut through.
bool LabelView::IsOneLine() const
{
    return 2 * height() < 3 * fontMetrics().lineSpacing() + fontMetrics().height() / 2;
}

void LabelView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const bool oneLine = IsOneLine();
    const int across = alignment() & Qt::AlignHCenter ? Qt::AlignHCenter : Qt::AlignLeft;
    const int flags = across | (oneLine ? Qt::AlignVCenter | Qt::TextSingleLine : Qt::AlignTop | Qt::TextWordWrap);
    const QString shown = oneLine ? fontMetrics().elidedText(text(), Qt::ElideRight, width()) : text();
    style()->drawItemText(&painter, rect(), flags, palette(), isEnabled(), shown, foregroundRole());
}

bool LabelView::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && IsOneLine() &&
        fontMetrics().horizontalAdvance(text()) > width()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace lineforge
