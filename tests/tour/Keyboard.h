#pragma once

#include <QChar>

#include <cstddef>
#include <vector>
#include <xcb/xcb.h>

namespace lineforge::tour
{

// The keys that type nothing, by their keysyms.
enum class Key : xcb_keysym_t {
    Tab = 0xff09,
    Return = 0xff0d,
    Escape = 0xff1b,
    Up = 0xff52,
    Down = 0xff54,
    Shift = 0xffe1,
    Control = 0xffe3,
    Alt = 0xffe9,
};

// Where the server's keyboard has its keys.
class Keyboard
{
public:
    struct Stroke {
        xcb_keycode_t Code = 0;
        bool WithShift = false;
    };

    explicit Keyboard(xcb_connection_t* connection);

    Stroke StrokeOf(QChar character) const;
    xcb_keycode_t CodeOf(Key key) const;

private:
    Stroke Find(xcb_keysym_t symbol) const;

    xcb_keycode_t first_ = 0;
    std::size_t symbolsAKey_ = 0;
    std::vector<xcb_keysym_t> symbols_;
};

} // namespace lineforge::tour
