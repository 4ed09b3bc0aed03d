#include "Display.h"

#include "Failure.h"
#include "Reply.h"

#include <algorithm>
#include <cstring>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int colourDepth = 24;
constexpr std::uint32_t longestProperty = 256; // in words of four bytes
} // namespace

Display::Display()
{
    int number = 0;
    connection_.reset(xcb_connect(nullptr, &number));
    if (xcb_connection_has_error(Connection()) != 0)
        throw Failure(u"There is no X screen to show the program on (DISPLAY)."_s);
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(Connection()));
    for (; number > 0; --number)
        xcb_screen_next(&screens);
    screen_ = screens.data;
    Expect(screen_->root_depth == colourDepth, u"a screen of 24 bits a pixel"_s);
    title_ = Atom("_NET_WM_NAME");
    protocols_ = Atom("WM_PROTOCOLS");
    deleteWindow_ = Atom("WM_DELETE_WINDOW");
    state_ = Atom("_NET_WM_STATE");
    above_ = Atom("_NET_WM_STATE_ABOVE");
}

xcb_atom_t Display::Atom(const char* name) const
{
    const auto asked = xcb_intern_atom(Connection(), 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(Connection(), asked, nullptr));
    Expect(reply != nullptr, u"the X server to know the atom "_s + QLatin1StringView(name));
    return reply->atom;
}

std::vector<xcb_window_t> Display::Children() const
{
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(Connection(), xcb_query_tree(Connection(), Root()), nullptr));
    Expect(tree != nullptr, u"an X server that lists its windows"_s);
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    return {children, children + xcb_query_tree_children_length(tree.get())};
}

std::vector<ScreenWindow> Display::Windows() const
{
    std::vector<ScreenWindow> windows;
    for (const xcb_window_t child : Children())
        if (std::optional<ScreenWindow> window = Describe(child))
            windows.push_back(*std::move(window));
    return windows;
}

// Nothing for a window that isn't on the screen, or has gone since it was listed.
std::optional<ScreenWindow> Display::Describe(xcb_window_t id) const
{
    const auto askedState = xcb_get_window_attributes(Connection(), id);
    const auto askedPlace = xcb_get_geometry(Connection(), id);
    const Reply<xcb_get_window_attributes_reply_t> state(
        xcb_get_window_attributes_reply(Connection(), askedState, nullptr));
    const Reply<xcb_get_geometry_reply_t> place(xcb_get_geometry_reply(Connection(), askedPlace, nullptr));
    if (!state || !place || state->map_state != XCB_MAP_STATE_VIEWABLE ||
        state->_class != XCB_WINDOW_CLASS_INPUT_OUTPUT)
        return std::nullopt;
    return ScreenWindow{id, TitleOf(id), QRect(place->x, place->y, place->width, place->height),
                        state->override_redirect != 0};
}

QString Display::TitleOf(xcb_window_t id) const
{
    return QString::fromUtf8(Property(id, title_));
}

QByteArray Display::Property(xcb_window_t id, xcb_atom_t property) const
{
    const auto asked = xcb_get_property(Connection(), 0, id, property, XCB_ATOM_ANY, 0, longestProperty);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(Connection(), asked, nullptr));
    if (!reply)
        return {};
    return QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())),
                      xcb_get_property_value_length(reply.get()));
}

bool Display::IsKeptAbove(const ScreenWindow& window) const
{
    const QByteArray state = Property(window.Id, state_);
    for (qsizetype at = 0; at + qsizetype(sizeof above_) <= state.size(); at += sizeof above_)
        if (std::memcmp(state.constData() + at, &above_, sizeof above_) == 0)
            return true;
    return false;
}

void Display::Raise(const ScreenWindow& window) const
{
    const std::uint32_t values[] = {XCB_STACK_MODE_ABOVE};
    xcb_configure_window(Connection(), window.Id, XCB_CONFIG_WINDOW_STACK_MODE, values);
    xcb_flush(Connection());
}

std::optional<ScreenWindow> Display::Find(const QString& title) const
{
    for (const ScreenWindow& window : Windows())
        if (!window.IsPopup && window.Title == title)
            return window;
    return std::nullopt;
}

std::optional<ScreenWindow> Display::Find(xcb_window_t id) const
{
    return Describe(id);
}

std::vector<ScreenWindow> Display::Popups() const
{
    std::vector<ScreenWindow> windows = Windows();
    std::erase_if(windows, [](const ScreenWindow& window) { return !window.IsPopup; });
    return windows;
}

std::optional<ScreenWindow> Display::TopmostWindow() const
{
    const std::vector<ScreenWindow> windows = Windows();
    const auto topmost =
        std::find_if(windows.rbegin(), windows.rend(), [](const ScreenWindow& window) { return !window.IsPopup; });
    return topmost == windows.rend() ? std::nullopt : std::optional(*topmost);
}

xcb_window_t Display::KeyboardOwner() const
{
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(Connection(), xcb_get_input_focus(Connection()), nullptr));
    Expect(reply != nullptr, u"an X server that tells whose the keyboard is"_s);
    return reply->focus;
}

void Display::GiveKeyboard(const ScreenWindow& window) const
{
    if (KeyboardOwner() == window.Id)
        return;
    xcb_set_input_focus(Connection(), XCB_INPUT_FOCUS_PARENT, window.Id, XCB_CURRENT_TIME);
    xcb_flush(Connection());
}

void Display::GiveKeyboardToTopmost() const
{
    const xcb_window_t owner = KeyboardOwner();
    if (std::ranges::any_of(Windows(), [&](const ScreenWindow& window) { return window.Id == owner; }))
        return;
    if (const std::optional<ScreenWindow> topmost = TopmostWindow())
        GiveKeyboard(*topmost);
}

QImage Display::Picture(const QRect& place) const
{
    const QRect seen = place & QRect(QPoint(), Size());
    Expect(!seen.isEmpty(), u"a place on the screen"_s);
    const auto asked = xcb_get_image(Connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, Root(), static_cast<short>(seen.x()),
                                     static_cast<short>(seen.y()), static_cast<std::uint16_t>(seen.width()),
                                     static_cast<std::uint16_t>(seen.height()), ~0U);
    const Reply<xcb_get_image_reply_t> reply(xcb_get_image_reply(Connection(), asked, nullptr));
    Expect(reply != nullptr, u"an X server that shows its screen"_s);
    Expect(xcb_get_image_data_length(reply.get()) == 4 * seen.width() * seen.height(), u"four bytes a pixel"_s);
    // A copy: the pixels go with the reply.
    return QImage(xcb_get_image_data(reply.get()), seen.width(), seen.height(), QImage::Format_RGB32).copy();
}

void Display::AskToClose(const ScreenWindow& window) const
{
    Tell(window.Id, XCB_EVENT_MASK_NO_EVENT, window.Id, protocols_, {deleteWindow_, XCB_CURRENT_TIME});
}

void Display::Tell(xcb_window_t receiver, std::uint32_t listeners, xcb_window_t about, xcb_atom_t type,
                   std::array<std::uint32_t, 2> content) const
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = about;
    message.type = type;
    std::ranges::copy(content, message.data.data32);
    xcb_send_event(Connection(), 0, receiver, listeners, reinterpret_cast<const char*>(&message));
    xcb_flush(Connection());
}

} // namespace lineforge::tour
