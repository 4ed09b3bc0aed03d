#include "x11/ManagedScreen.h"

#include "tour/Failure.h"
#include "tour/Reply.h"

#include <cstring>

namespace lineforge
{

using namespace Qt::StringLiterals;
using tour::Expect;
using tour::Reply;

namespace
{
constexpr xcb_window_t noWindow = XCB_WINDOW_NONE;
constexpr std::uint32_t iconic = 3; // what ICCCM calls a window that is minimised
constexpr std::uint32_t byUser = 2; // who an order comes from, as EWMH counts them

QRect RectangleOf(const std::vector<std::uint32_t>& numbers)
{
    Expect(numbers.size() >= 4, u"a work area"_s);
    const auto at = [&numbers](std::size_t index) { return static_cast<int>(numbers[index]); };
    return {at(0), at(1), at(2), at(3)};
}
} // namespace

std::vector<std::uint32_t> ManagedScreen::Numbers(xcb_window_t window, const char* property) const
{
    const QByteArray bytes = Property(window, Atom(property));
    std::vector<std::uint32_t> numbers(static_cast<std::size_t>(bytes.size()) / sizeof(std::uint32_t));
    std::memcpy(numbers.data(), bytes.constData(), numbers.size() * sizeof(std::uint32_t));
    return numbers;
}

QRect ManagedScreen::WorkArea() const
{
    return RectangleOf(Numbers(Root(), "_NET_WORKAREA"));
}

QRect ManagedScreen::PlaceWithFrame(xcb_window_t window) const
{
    const auto askedSize = xcb_get_geometry(Connection(), window);
    const auto askedPlace = xcb_translate_coordinates(Connection(), window, Root(), 0, 0);
    const Reply<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(Connection(), askedSize, nullptr));
    const Reply<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(Connection(), askedPlace, nullptr));
    Expect(size && place, u"a window that is there"_s);
    const QRect inner(place->dst_x, place->dst_y, size->width, size->height);
    const std::vector<std::uint32_t> frame = Numbers(window, "_NET_FRAME_EXTENTS");
    Expect(frame.size() == 4, u"a frame whose width is known"_s);
    const auto side = [&frame](std::size_t index) { return static_cast<int>(frame[index]); };
    return inner.adjusted(-side(0), -side(2), side(1), side(3));
}

xcb_window_t ManagedScreen::Front() const
{
    const std::vector<std::uint32_t> windows = Numbers(Root(), "_NET_CLIENT_LIST_STACKING");
    return windows.empty() ? noWindow : windows.back();
}

xcb_window_t ManagedScreen::Active() const
{
    const std::vector<std::uint32_t> window = Numbers(Root(), "_NET_ACTIVE_WINDOW");
    return window.empty() ? noWindow : window.front();
}

bool ManagedScreen::IsMinimised(xcb_window_t window) const
{
    const std::vector<std::uint32_t> state = Numbers(window, "WM_STATE");
    return !state.empty() && state.front() == iconic;
}

void ManagedScreen::BringToFront(xcb_window_t window) const
{
    Order(window, "_NET_ACTIVE_WINDOW", byUser);
}

void ManagedScreen::Minimise(xcb_window_t window) const
{
    Order(window, "WM_CHANGE_STATE", iconic);
}

void ManagedScreen::AskManagerToClose(xcb_window_t window) const
{
    Order(window, "_NET_CLOSE_WINDOW", XCB_CURRENT_TIME, byUser);
}

void ManagedScreen::Order(xcb_window_t window, const char* what, std::uint32_t first, std::uint32_t second) const
{
    Tell(Root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, window, Atom(what),
         {first, second});
}

} // namespace lineforge
