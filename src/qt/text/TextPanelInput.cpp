#include "qt/text/TextPanelView.h"
#include "qt/views/ScrollBarView.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace lineforge
{

namespace
{
constexpr int scrollMilliseconds = 50;
constexpr int pixelsAStep = 40;

// Where a key leads the caret to; `page` lines are in view.
TextPosition Led(const QStringList& lines, TextPosition caret, const QKeyEvent& event, qsizetype page)
{
    const bool isFar = event.modifiers().testFlag(Qt::ControlModifier);
    const TextPosition end = EndOf(lines);
    const auto inLine = [&](qsizetype line) {
        const qsizetype reached = std::clamp<qsizetype>(line, 0, end.Line);
        return TextPosition{reached, std::min(caret.Column, lines.value(reached).size())};
    };
    switch (event.key()) {
    case Qt::Key_Left:
        return Before(lines, caret);
    case Qt::Key_Right:
        return After(lines, caret);
    case Qt::Key_Up:
        return inLine(caret.Line - 1);
    case Qt::Key_Down:
        return inLine(caret.Line + 1);
    case Qt::Key_PageUp:
        return inLine(caret.Line - page);
    case Qt::Key_PageDown:
        return inLine(caret.Line + page);
    case Qt::Key_Home:
        return isFar ? TextPosition() : TextPosition{caret.Line, 0};
    default:
        return isFar ? end : TextPosition{caret.Line, lines.value(caret.Line).size()};
    }
}

bool IsMove(int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return false;
    }
}
} // namespace

void TextPanelView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const TextPosition at = PositionAt(event->pos());
    selection_ = {event->modifiers().testFlag(Qt::ShiftModifier) ? selection_.Anchor : at, at};
    update();
}

void TextPanelView::mouseMoveEvent(QMouseEvent* event)
{
    if (!event->buttons().testFlag(Qt::LeftButton))
        return;
    pointer_ = event->pos();
    if (rect().contains(pointer_))
        scrolling_.stop();
    else if (!scrolling_.isActive())
        scrolling_.start(scrollMilliseconds, this);
    DrawSelectionTo(pointer_);
}

void TextPanelView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        scrolling_.stop();
}

void TextPanelView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    selection_ = WordAt(Lines(), PositionAt(event->pos()));
    update();
}

void TextPanelView::DrawSelectionTo(QPoint point)
{
    selection_.Caret = PositionAt(point);
    update();
}

// The pointer rests beyond an edge with the button held.
void TextPanelView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != scrolling_.timerId())
        return QWidget::timerEvent(event);
    if (QScrollBar* bar = ScrollBarAround(*this); bar && (pointer_.y() < 0 || pointer_.y() >= height()))
        bar->triggerAction(pointer_.y() < 0 ? QScrollBar::SliderSingleStepSub : QScrollBar::SliderSingleStepAdd);
    if (pointer_.x() < 0 || pointer_.x() >= width())
        ShiftSidewards(pointer_.x() < 0 ? -pixelsAStep : pixelsAStep);
    DrawSelectionTo(pointer_);
}

void TextPanelView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        Copy();
    else if (event->matches(QKeySequence::SelectAll))
        SelectAll();
    else if (!IsMove(event->key()) || !(MoveCaret(*event) || Scroll(*event)))
        QWidget::keyPressEvent(event);
}

// With Shift a key draws the selection on, from the first line in view where nothing has been begun there.
bool TextPanelView::MoveCaret(const QKeyEvent& event)
{
    if (!event.modifiers().testFlag(Qt::ShiftModifier))
        return false;
    const bool isInView = TopOf(selection_.Caret.Line) >= 0 && TopOf(selection_.Caret.Line) < height();
    TextSelection drawn = selection_;
    if (drawn.IsEmpty() && !isInView) {
        const qsizetype partly = LineAt(0);
        const qsizetype first = TopOf(partly) < 0 ? std::min(partly + 1, EndOf(Lines()).Line) : partly;
        drawn = {{first, 0}, {first, 0}};
    }
    const qsizetype page = std::max<qsizetype>(1, LineAt(height()) - LineAt(0) - 1);
    drawn.Caret = Led(Lines(), drawn.Caret, event, page);
    Select(drawn);
    return true;
}

bool TextPanelView::Scroll(QKeyEvent& event)
{
    if (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right) {
        ShiftSidewards(event.key() == Qt::Key_Left ? -pixelsAStep : pixelsAStep);
        return true;
    }
    if (event.key() == Qt::Key_End) {
        Reveal(EndOf(Lines()).Line);
        return true;
    }
    QScrollBar* bar = ScrollBarAround(*this);
    return bar && QCoreApplication::sendEvent(bar, &event);
}

// Upwards and downwards the window scrolls.
void TextPanelView::wheelEvent(QWheelEvent* event)
{
    const int sidewards = event->modifiers().testFlag(Qt::ShiftModifier) ? event->angleDelta().y() : 0;
    const int turned = event->angleDelta().x() + sidewards;
    event->setAccepted(turned != 0 && ShiftSidewards(-turned / 3));
}

} // namespace lineforge
