#include "Compositor.h"

#include "Failure.h"
#include "Ink.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>
#include <utility>
#include <xcb/xtest.h>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
// What the toolkit draws around a window, in pixels.
constexpr int titleBar = 30;
constexpr int border = 3;

// One thing that the compositor shows.
struct View {
    QString Role;
    xcb_window_t Id = XCB_WINDOW_NONE;
    QString Words; // that it describes it by
    QRect Place;   // with its frame
};

QRect RectangleIn(const QString& line)
{
    static const QRegularExpression corners(u"\\((-?\\d+), (-?\\d+)\\) -> \\((-?\\d+), (-?\\d+)\\)"_s);
    const QRegularExpressionMatch found = corners.match(line);
    if (!found.hasMatch())
        return {};
    const auto at = [&found](int group) { return found.capturedView(group).toInt(); };
    return {QPoint(at(1), at(2)), QPoint(at(3) - 1, at(4) - 1)};
}

std::optional<View> ViewIn(const QString& line)
{
    static const QRegularExpression words(
        u"^\\s*View \\d+ \\(role (\\S+), PID (\\d+), surface ID (\\d+), (.*), 0x([0-9a-f]+)\\):$"_s);
    const QRegularExpressionMatch found = words.match(line);
    if (!found.hasMatch())
        return std::nullopt;
    const std::size_t id = qHashMulti(0, found.captured(2), found.captured(3), found.captured(4), found.captured(5));
    return View{found.captured(1), static_cast<xcb_window_t>(id), found.captured(4), {}};
}

// Whatever numbers a window has, soon are those of another once it has gone. A box that comes after one of the same
// title stands elsewhere.
void TakePlace(View& view, const QRect& place)
{
    view.Place = place;
    view.Id = static_cast<xcb_window_t>(qHashMulti(view.Id, place.x(), place.y()));
}

QString AskForScene()
{
    QProcess teller;
    teller.start(u"weston-debug"_s, {u"scene-graph"_s});
    Expect(teller.waitForFinished() && teller.exitCode() == 0, u"a compositor that tells of its scene"_s);
    return QString::fromUtf8(teller.readAllStandardOutput());
}

// A window is in the scene before it is in the picture, and until then what is clicked on there is what it will cover.
QString PaintedScene()
{
    constexpr int patience = 30'000; // milliseconds
    QElapsedTimer waited;
    waited.start();
    QString scene = AskForScene();
    for (; !scene.contains(u"repaint status: no repaint"_s); scene = AskForScene())
        Expect(!waited.hasExpired(patience), u"a compositor that comes to rest"_s);
    return scene;
}

// From the topmost to the lowest.
std::vector<View> Scene()
{
    std::vector<View> views;
    const QStringList lines = PaintedScene().split(u'\n');
    for (const QString& line : lines) {
        if (std::optional<View> view = ViewIn(line))
            views.push_back(*std::move(view));
        else if (!views.empty() && line.contains(u"position:"))
            TakePlace(views.back(), RectangleIn(line));
    }
    return views;
}

// Nothing for what is no window of a program.
std::optional<ScreenWindow> WindowIn(const View& view)
{
    if (view.Role == u"xdg_popup")
        return ScreenWindow{view.Id, {}, view.Place, true};
    static const QRegularExpression words(u"^top-level window '(.*)' of ([^']*)$"_s);
    const QRegularExpressionMatch found = words.match(view.Words);
    if (view.Role != u"xdg_toplevel" || !found.hasMatch())
        return std::nullopt;
    // A window without a frame has no title either, and is called after its program.
    if (found.captured(1) == found.captured(2))
        return ScreenWindow{view.Id, {}, view.Place, false};
    return ScreenWindow{view.Id, found.captured(1), view.Place.marginsRemoved({border, titleBar, border, border}),
                        false};
}

QPoint CrossOf(const ScreenWindow& window)
{
    constexpr int fromTheRight = 8;
    return window.Place.topRight() + QPoint(-fromTheRight, -titleBar / 2);
}
} // namespace

Compositor::Compositor()
{
    const std::vector<xcb_window_t> seen = Children();
    Expect(seen.size() == 1, u"nothing but the compositor on the X screen"_s);
    xcb_set_input_focus(Connection(), XCB_INPUT_FOCUS_PARENT, seen.front(), XCB_CURRENT_TIME);
    MeetPointer();
    xcb_flush(Connection());
}

// The compositor's pointer makes the way that the X screen's makes, from wherever it stands. In a corner both are
// stopped.
void Compositor::MeetPointer() const
{
    for (const QPoint corner : {QPoint(0, 0), QPoint(Size().width() - 1, Size().height() - 1)})
        xcb_test_fake_input(Connection(), XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, Root(),
                            static_cast<short>(corner.x()), static_cast<short>(corner.y()), 0);
}

QSize Compositor::Room() const
{
    const std::vector<View> scene = Scene();
    const auto panel =
        std::ranges::find_if(scene, [](const View& view) { return view.Words.startsWith(u"panel for output"); });
    Expect(panel != scene.end(), u"a panel of the compositor"_s);
    return Size() - QSize(2 * border, panel->Place.height() + titleBar + border);
}

std::vector<ScreenWindow> Compositor::Windows() const
{
    std::vector<ScreenWindow> windows;
    for (const View& view : Scene())
        if (std::optional<ScreenWindow> window = WindowIn(view))
            windows.push_back(*std::move(window));
    std::ranges::reverse(windows);
    return windows;
}

std::optional<ScreenWindow> Compositor::Find(xcb_window_t id) const
{
    for (const ScreenWindow& window : Windows())
        if (window.Id == id)
            return window;
    return std::nullopt;
}

bool Compositor::IsKeptAbove(const ScreenWindow& window) const
{
    return Windows().back().Id == window.Id;
}

// The compositor gives the keyboard to the topmost window, which draws its frame in black as soon as it knows. What is
// typed before that reaches it too, but what it pops up meanwhile belongs to another window. Newer toolkits don't draw
// every frame again that should be, and have had time enough to know.
bool Compositor::AwaitsKeyboard(const ScreenWindow& window) const
{
    const std::optional<ScreenWindow> topmost = TopmostWindow();
    if (!topmost || topmost->Id != window.Id || topmost->Title.isEmpty())
        return false;
    constexpr int reach = 5; // of the cross, from its middle
    constexpr int nearlyBlack = 64;
    const QRect cross(CrossOf(*topmost) - QPoint(reach, reach), CrossOf(*topmost) + QPoint(reach, reach));
    const xcb_window_t pale = DarkestGrey(Picture(cross)) > nearlyBlack ? topmost->Id : 0;
    if (std::exchange(pale_, pale) != pale)
        hasBeenPale_.start();
    constexpr int longest = 3'000; // milliseconds
    return pale && !hasBeenPale_.hasExpired(longest);
}

std::optional<QPoint> Compositor::ClosingCross(const ScreenWindow& window) const
{
    return CrossOf(window);
}

} // namespace lineforge::tour
