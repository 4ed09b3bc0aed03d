#pragma once

#include <QImage>
#include <QRect>
#include <QString>

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

    xcb_connection_t* Connection() const { return connection_.get(); }
    xcb_window_t Root() const { return screen_->root; }
    QSize Size() const { return {screen_->width_in_pixels, screen_->height_in_pixels}; }

    // From the lowest to the topmost.
    std::vector<ScreenWindow> Windows() const;
    std::optional<ScreenWindow> Find(const QString& title) const;
    std::optional<ScreenWindow> Find(xcb_window_t id) const;
    std::vector<ScreenWindow> Popups() const;

    // What stands on the screen there, whichever windows it belongs to.
    QImage Picture(const QRect& place) const;
    QImage Picture() const { return Picture(QRect(QPoint(), Size())); }

    // What a window manager would do, if the screen had one: heed a window that asks to stay above the others, and
    // give the keyboard to the window that comes, or to the one that is left when another goes.
    bool AsksToStayAbove(const ScreenWindow& window) const;
    void Raise(const ScreenWindow& window) const;
    void GiveKeyboard(const ScreenWindow& window) const;
    void GiveKeyboardToTopmost() const;

    // What a click on the cross of a window's title asks for.
    void AskToClose(const ScreenWindow& window) const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    xcb_window_t KeyboardOwner() const;
    std::optional<ScreenWindow> Describe(xcb_window_t id) const;
    QString TitleOf(xcb_window_t id) const;
    QByteArray Property(xcb_window_t id, xcb_atom_t property) const;
    xcb_atom_t Atom(const char* name) const;

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    const xcb_screen_t* screen_ = nullptr;
    xcb_atom_t title_ = XCB_ATOM_NONE;
    xcb_atom_t protocols_ = XCB_ATOM_NONE;
    xcb_atom_t deleteWindow_ = XCB_ATOM_NONE;
    xcb_atom_t state_ = XCB_ATOM_NONE;
    xcb_atom_t above_ = XCB_ATOM_NONE;
};

} // namespace lineforge::tour
