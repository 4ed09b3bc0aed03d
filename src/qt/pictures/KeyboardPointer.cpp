#include "qt/pictures/KeyboardPointer.h"

#include "qt/events/Keys.h"
#include "qt/views/AccessibleName.h"
#include "qt/views/ScrollBarView.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int arm = 12; // pixels from the middle to the end
constexpr int gap = 3;  // left free, so that the place itself is seen
constexpr int step = 5;
constexpr int repeatedStep = 20;

int StepOf(const QKeyEvent& event)
{
    if (event.modifiers().testFlag(Qt::ControlModifier))
        return 1;
    return event.isAutoRepeat() ? repeatedStep : step;
}

bool IsScroll(int key)
{
    return key == Qt::Key_PageUp || key == Qt::Key_PageDown || key == Qt::Key_Home || key == Qt::Key_End;
}

QPoint Within(const QRect& area, QPoint place)
{
    return {std::clamp(place.x(), area.left(), std::max(area.left(), area.right())),
            std::clamp(place.y(), area.top(), std::max(area.top(), area.bottom()))};
}

// Those that a mouse event tells.
Qt::KeyboardModifiers HeldWith(const QKeyEvent& event)
{
    return event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
}

// Tab and the like; what only brings the window back leaves the pointer as it was.
bool IsByKey(const QFocusEvent& event)
{
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason &&
           event.reason() != Qt::MenuBarFocusReason;
}
} // namespace

KeyboardPointer::KeyboardPointer(QWidget& over) : QWidget(&over), over_(over)
{
    setObjectName(Name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(2 * arm + 1, 2 * arm + 1);
    TakeFor(*this, QAccessible::Cursor);
    setAccessibleName(u"Pointer"_s);
    hide();
    // A click leaves the focus where the user works.
    over_.setFocusPolicy(Qt::TabFocus);
    over_.installEventFilter(this);
}

std::optional<QPoint> KeyboardPointer::Place() const
{
    return isVisible() ? std::optional(geometry().center()) : std::nullopt;
}

void KeyboardPointer::StandAt(QPoint place)
{
    over_.setFocus(Qt::OtherFocusReason);
    Appear();
    MoveTo(place, {});
}

bool KeyboardPointer::event(QEvent* event)
{
    const bool isDone = QWidget::event(event);
    const QEvent::Type type = event->type();
    if ((type == QEvent::Move || type == QEvent::Show || type == QEvent::Hide) && Moved)
        Moved();
    return isDone;
}

// Dark within light, so that it shows on any picture. A button that is held down is a ring around the place.
void KeyboardPointer::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(arm + 0.5, arm + 0.5);
    for (const QPen& pen : {QPen(Qt::white, 4), QPen(palette().color(QPalette::Highlight).darker(), 2)}) {
        painter.setPen(pen);
        for (const QPoint end : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
            painter.drawLine(end * gap, end * arm);
        if (isHeld_)
            painter.drawEllipse(QPointF(), arm / 2.0, arm / 2.0);
    }
}

bool KeyboardPointer::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return TakeKey(static_cast<QKeyEvent&>(*event));
    case QEvent::FocusIn:
        if (isInUse_ || IsByKey(static_cast<QFocusEvent&>(*event)))
            Appear();
        return false;
    case QEvent::FocusOut:
        hide();
        LetGoSoon();
        return false;
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
        return event->spontaneous() && GiveWayTo(*event);
    default:
        return false;
    }
}

bool KeyboardPointer::TakeKey(QKeyEvent& event)
{
    // Two drags at once would be none.
    if (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier) || QGuiApplication::mouseButtons() != Qt::NoButton)
        return false;
    if (const QPoint direction = DirectionOf(event.key()); !direction.isNull()) {
        Appear();
        MoveTo(at_ + direction * StepOf(event), HeldWith(event));
        return true;
    }
    if (IsPressKey(event.key())) {
        if (!event.isAutoRepeat())
            Press(event);
        return true;
    }
    if (event.key() == Qt::Key_Escape)
        return LetGo(HeldWith(event));
    return IsScroll(event.key()) && Scroll(event);
}

// The pointer keeps its place on the screen.
bool KeyboardPointer::Scroll(QKeyEvent& event)
{
    QScrollBar* bar = ScrollBarAround(over_);
    if (!bar)
        return false;
    Appear();
    const QPoint onScreen = over_.mapToParent(at_);
    QCoreApplication::sendEvent(bar, &event);
    MoveTo(over_.mapFromParent(onScreen), HeldWith(event));
    return true;
}

void KeyboardPointer::Press(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = HeldWith(event);
    if (LetGo(modifiers))
        return;
    Appear();
    if (event.key() != Qt::Key_Space)
        return DoubleClick(modifiers);
    Hold(modifiers & ~Qt::ShiftModifier);
    if (!modifiers.testFlag(Qt::ShiftModifier))
        LetGo(modifiers);
}

void KeyboardPointer::DoubleClick(Qt::KeyboardModifiers modifiers)
{
    Hold(modifiers & ~Qt::ShiftModifier);
    LetGo(modifiers);
    Send(QEvent::MouseButtonDblClick, true, modifiers);
    Send(QEvent::MouseButtonRelease, false, modifiers);
}

// What the press does may have led elsewhere by then.
void KeyboardPointer::Hold(Qt::KeyboardModifiers modifiers)
{
    Send(QEvent::MouseButtonPress, true, modifiers);
    isHeld_ = true;
    update();
    if (!over_.hasFocus())
        LetGo(modifiers);
}

bool KeyboardPointer::LetGo(Qt::KeyboardModifiers modifiers)
{
    if (!std::exchange(isHeld_, false))
        return false;
    update();
    Send(QEvent::MouseButtonRelease, false, modifiers);
    return true;
}

// The toolkit may be in the midst of opening a menu, which is no time for what the release may ask the user.
void KeyboardPointer::LetGoSoon()
{
    if (isHeld_)
        QMetaObject::invokeMethod(
            this, [this] { LetGo({}); }, Qt::QueuedConnection);
}

bool KeyboardPointer::GiveWayTo(const QEvent& mouse)
{
    // The desk has been knocked: no reason to end a drag.
    if (mouse.type() == QEvent::MouseMove)
        return isHeld_;
    LetGo({});
    isInUse_ = false;
    hide();
    return false;
}

QRect KeyboardPointer::Seen() const
{
    const QRect window(over_.mapFromParent(QPoint()), over_.parentWidget()->size());
    return over_.rect() & window;
}

// Where it was, as far as that is still to be seen; at first in the middle.
void KeyboardPointer::Appear()
{
    at_ = std::exchange(isPlaced_, true) ? Within(Seen(), at_) : Seen().center();
    isInUse_ = true;
    move(at_ - rect().center());
    raise();
    show();
}

void KeyboardPointer::MoveTo(QPoint place, Qt::KeyboardModifiers modifiers)
{
    at_ = Within(over_.rect(), place);
    ScrollIntoView();
    move(at_ - rect().center());
    Send(QEvent::MouseMove, isHeld_, modifiers);
}

void KeyboardPointer::ScrollIntoView()
{
    QScrollBar* bar = ScrollBarAround(over_);
    while (bar && !Seen().contains(at_)) {
        const int before = bar->value();
        bar->triggerAction(at_.y() < Seen().top() ? QScrollBar::SliderSingleStepSub : QScrollBar::SliderSingleStepAdd);
        if (bar->value() == before)
            return;
    }
}

void KeyboardPointer::Send(QEvent::Type type, bool isDown, Qt::KeyboardModifiers modifiers)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButton held = isDown ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, at_, over_.mapToGlobal(at_), button, held, modifiers);
    QCoreApplication::sendEvent(&over_, &event);
}

} // namespace lineforge
