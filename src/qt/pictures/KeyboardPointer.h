#pragma once

#include <QEvent>
#include <QString>
#include <QWidget>

#include <functional>
#include <optional>

class QKeyEvent;

namespace lineforge
{

// A mouse for those who have none, over a widget that listens to one: a cross that is seen while the widget has the
// focus. The arrow keys move it, further while they are held down, pixel by pixel with Ctrl. Space clicks; with Shift
// it holds the button down until the next Space, Enter or Escape, or until the focus goes. Enter double-clicks. Page
// Up, Page Down, Home and End scroll what is below it. All of this reaches the widget as events of the mouse with the
// modifier keys of the key event. Shift with Space is spent on the holding.
class KeyboardPointer : public QWidget
{
public:
    inline static const QString Name = QStringLiteral("KeyboardPointer");

    explicit KeyboardPointer(QWidget& over);

    // On the widget, while it is seen.
    std::optional<QPoint> Place() const;
    // Told whenever it stands elsewhere, comes up or goes.
    std::function<void()> Moved;

    // As the keys do.
    void StandAt(QPoint place);
    void DoubleClick(Qt::KeyboardModifiers modifiers);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    // Of the widget below.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool TakeKey(QKeyEvent& event);
    bool Scroll(QKeyEvent& event);
    void Press(const QKeyEvent& event);
    void Hold(Qt::KeyboardModifiers modifiers);
    // False when nothing was held.
    bool LetGo(Qt::KeyboardModifiers modifiers);
    void LetGoSoon();
    // Hands that are on the mouse again come before those on the keys.
    bool GiveWayTo(const QEvent& mouse);

    QRect Seen() const;
    void Appear();
    void MoveTo(QPoint place, Qt::KeyboardModifiers modifiers);
    void ScrollIntoView();
    void Send(QEvent::Type type, bool isDown, Qt::KeyboardModifiers modifiers);

    QWidget& over_;
    QPoint at_;
    bool isPlaced_ = false;
    bool isInUse_ = false; // keys have led here, or have been pressed here
    bool isHeld_ = false;
};

} // namespace lineforge
