#pragma once

#include "Display.h"
#include "Keyboard.h"

#include <QElapsedTimer>
#include <QPoint>
#include <QString>

#include <initializer_list>

namespace lineforge::tour
{

// A user's hands: mouse and keyboard of the screen. Points are of the screen.
class Input
{
public:
    explicit Input(const Display& display);

    void Click(QPoint place);
    void DoubleClick(QPoint place);
    // Keys may be held meanwhile.
    void Drag(QPoint from, QPoint to, std::initializer_list<Key> held = {});

    void Type(const QString& text);
    void Press(Key key);
    // A character's key while others are held: {Key::Alt}, 'f'.
    void Press(std::initializer_list<Key> held, QChar character);

private:
    void Send(std::uint8_t event, std::uint8_t detail, QPoint place = {});
    void Tap(xcb_keycode_t code);
    void ClickOnce(QPoint place);
    void Arrive();

    const Display& display_;
    Keyboard keyboard_;
    QPoint lastClick_;
    QElapsedTimer sinceClick_;
};

} // namespace lineforge::tour
