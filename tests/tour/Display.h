#pragma once

#include <QImage>
#include <QRect>
#include <QString>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>
#include <xcb/xcb.h>

namespace lineforge::tour
{

// A window that is on the screen.
struct ScreenWindow {
    xcb_window_t Id = XCB_WINDOW_NONE;
    QString Title;
    QRect Place;          // on the screen
    bool IsPopup = false; // a menu or a tip, which no window manager would dress
};

// The X screen, seen from outside of any program.
class Display
{
public:
    Display();
    virtual ~Display() = default;
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    xcb_connection_t* Connection() const { return connection_.get(); }
    xcb_window_t Root() const { return screen_->root; }
    QSize Size() const { return {screen_->width_in_pixels, screen_->height_in_pixels}; }

    // The toolkit's name for what shows a program here.
    virtual QString Platform() const { return QStringLiteral("xcb"); }
    // Whether windows stand where their programs put them.
    virtual bool PlacesAsAsked() const { return true; }
    // How large a window can be, without a frame that it is given.
    virtual QSize Room() const { return Size(); }

    // From the lowest to the topmost.
    virtual std::vector<ScreenWindow> Windows() const;
    std::optional<ScreenWindow> Find(const QString& title) const;
    virtual std::optional<ScreenWindow> Find(xcb_window_t id) const;
    std::vector<ScreenWindow> Popups() const;
    // Of those that are no popups.
    std::optional<ScreenWindow> TopmostWindow() const;

    // What stands on the screen there, whichever windows it belongs to.
    QImage Picture(const QRect& place) const;
    QImage Picture() const { return Picture(QRect(QPoint(), Size())); }

    // What a window manager would do, if the screen had one: heed a window that asks to stay above the others, and
    // give the keyboard to the window that comes, or to the one that is left when another goes.
    virtual bool IsKeptAbove(const ScreenWindow& window) const;
    virtual void Raise(const ScreenWindow& window) const;
    virtual void GiveKeyboard(const ScreenWindow& window) const;
    virtual void GiveKeyboardToTopmost() const;
    // Whether the window will have the keyboard, but doesn't know yet.
    virtual bool AwaitsKeyboard(const ScreenWindow& /*window*/) const { return false; }

    // Where to click to close a window; nowhere when it has no frame, and what the click would ask for is asked.
    virtual std::optional<QPoint> ClosingCross(const ScreenWindow& /*window*/) const { return std::nullopt; }
    virtual void AskToClose(const ScreenWindow& window) const;

protected:
    // Those of the X screen itself, from the lowest to the topmost.
    std::vector<xcb_window_t> Children() const;
    QByteArray Property(xcb_window_t id, xcb_atom_t property) const;
    xcb_atom_t Atom(const char* name) const;
    // A message about a window, to whoever listens at `receiver` for that; to its owner when nothing is named.
    void Tell(xcb_window_t receiver, std::uint32_t listeners, xcb_window_t about, xcb_atom_t type,
              std::array<std::uint32_t, 2> content) const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    xcb_window_t KeyboardOwner() const;
    std::optional<ScreenWindow> Describe(xcb_window_t id) const;
    QString TitleOf(xcb_window_t id) const;

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    const xcb_screen_t* screen_ = nullptr;
    xcb_atom_t title_ = XCB_ATOM_NONE;
    xcb_atom_t protocols_ = XCB_ATOM_NONE;
    xcb_atom_t deleteWindow_ = XCB_ATOM_NONE;
    xcb_atom_t state_ = XCB_ATOM_NONE;
    xcb_atom_t above_ = XCB_ATOM_NONE;
};

} // namespace lineforge::tour
