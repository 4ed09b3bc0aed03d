#pragma once

#include "tour/Display.h"

namespace lineforge
{

// An X screen with a window manager, as the panels and task lists of a desktop see and command it.
class ManagedScreen : public tour::Display
{
public:
    // What windows may take.
    QRect WorkArea() const;
    // Of a program's window, with the frame that the window manager has put around it.
    QRect PlaceWithFrame(xcb_window_t window) const;

    // The topmost of all programs' windows, and the one that has the keyboard.
    xcb_window_t Front() const;
    xcb_window_t Active() const;
    bool IsMinimised(xcb_window_t window) const;

    void BringToFront(xcb_window_t window) const;
    void Minimise(xcb_window_t window) const;
    // As the cross of its frame does.
    void AskManagerToClose(xcb_window_t window) const;

private:
    std::vector<std::uint32_t> Numbers(xcb_window_t window, const char* property) const;
    void Order(xcb_window_t window, const char* what, std::uint32_t first, std::uint32_t second = 0) const;
};

} // namespace lineforge
