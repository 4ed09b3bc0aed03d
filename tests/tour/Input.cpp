#include "Input.h"

#include "Failure.h"
#include "Reply.h"

#include <QThread>

#include <cstdlib>
#include <utility>
#include <xcb/xtest.h>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
constexpr std::uint8_t leftButton = 1;

// `wait` is how many milliseconds before.
void Fake(const Display& display, std::uint8_t event, std::uint8_t detail, std::uint32_t wait, QPoint place = {})
{
    xcb_test_fake_input(display.Connection(), event, detail, wait, display.Root(), static_cast<short>(place.x()),
                        static_cast<short>(place.y()), 0);
}
} // namespace

Input::Input(const Display& display) : display_(display), keyboard_(display.Connection())
{
    const auto asked = xcb_test_get_version(display_.Connection(), XCB_TEST_MAJOR_VERSION, XCB_TEST_MINOR_VERSION);
    const Reply<xcb_test_get_version_reply_t> reply(xcb_test_get_version_reply(display_.Connection(), asked, nullptr));
    Expect(reply != nullptr, u"an X server with the extension XTEST"_s);
}

// Two clicks on different things must not be taken for a double click, however close they are.
void Input::Click(QPoint place)
{
    constexpr qint64 doubleClickMilliseconds = 500;
    constexpr int near = 10;
    const bool isNear = (place - lastClick_).manhattanLength() < near;
    if (isNear && sinceClick_.isValid() && sinceClick_.elapsed() < doubleClickMilliseconds)
        QThread::msleep(static_cast<unsigned long>(doubleClickMilliseconds - sinceClick_.elapsed()));
    ClickOnce(place);
    Arrive();
}

void Input::DoubleClick(QPoint place)
{
    ClickOnce(place);
    ClickOnce(place);
    Arrive();
}

void Input::ClickOnce(QPoint place)
{
    Send(XCB_MOTION_NOTIFY, 0, place);
    Send(XCB_BUTTON_PRESS, leftButton);
    Send(XCB_BUTTON_RELEASE, leftButton);
    lastClick_ = place;
    sinceClick_.start();
}

// In small moves, as a hand does it: some things begin to follow only after the first few.
void Input::Drag(QPoint from, QPoint to, std::initializer_list<Key> held)
{
    constexpr int moves = 10;
    for (const Key key : held)
        Send(XCB_KEY_PRESS, keyboard_.CodeOf(key));
    Send(XCB_MOTION_NOTIFY, 0, from);
    Send(XCB_BUTTON_PRESS, leftButton);
    for (int move = 1; move <= moves; ++move)
        Send(XCB_MOTION_NOTIFY, 0, from + (to - from) * move / moves);
    Send(XCB_BUTTON_RELEASE, leftButton);
    for (const Key key : held)
        Send(XCB_KEY_RELEASE, keyboard_.CodeOf(key));
    Arrive();
}

void Input::Type(const QString& text)
{
    // The list that comes up under a name takes the keyboard while it comes.
    constexpr std::uint32_t untilTheListIsThere = 200; // milliseconds
    const xcb_keycode_t shift = keyboard_.CodeOf(Key::Shift);
    QChar before;
    for (const QChar character : text) {
        const std::uint32_t wait = std::exchange(before, character) == u'/' ? untilTheListIsThere : 0;
        const Keyboard::Stroke stroke = keyboard_.StrokeOf(character);
        Fake(display_, XCB_KEY_PRESS, stroke.WithShift ? shift : stroke.Code, wait);
        if (stroke.WithShift) {
            Tap(stroke.Code);
            Send(XCB_KEY_RELEASE, shift);
        } else {
            Send(XCB_KEY_RELEASE, stroke.Code);
        }
    }
    Arrive();
}

void Input::Press(Key key)
{
    Tap(keyboard_.CodeOf(key));
    Arrive();
}

void Input::Press(std::initializer_list<Key> held, QChar character)
{
    // Menus don't keep several keys apart that a compositor hands on together.
    constexpr std::uint32_t slowly = 60;
    const xcb_keycode_t tapped = keyboard_.StrokeOf(character).Code;
    for (const Key key : held)
        Fake(display_, XCB_KEY_PRESS, keyboard_.CodeOf(key), slowly);
    Fake(display_, XCB_KEY_PRESS, tapped, slowly);
    Fake(display_, XCB_KEY_RELEASE, tapped, slowly);
    for (const Key key : held)
        Fake(display_, XCB_KEY_RELEASE, keyboard_.CodeOf(key), slowly);
    Arrive();
}

void Input::Tap(xcb_keycode_t code)
{
    Send(XCB_KEY_PRESS, code);
    Send(XCB_KEY_RELEASE, code);
}

void Input::Send(std::uint8_t event, std::uint8_t detail, QPoint place)
{
    // A key that goes down in the very millisecond in which it came up is taken for one that is held.
    constexpr std::uint32_t pause = 2;
    Fake(display_, event, detail, event == XCB_KEY_PRESS ? pause : 0, place);
}

// Any question that the server answers is answered after all that was sent before.
void Input::Arrive()
{
    const auto asked = xcb_get_input_focus(display_.Connection());
    const Reply<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(display_.Connection(), asked, nullptr));
    Expect(reply != nullptr, u"the X server to take the input"_s);
}

} // namespace lineforge::tour
