#pragma once

#include "Display.h"

#include <QElapsedTimer>

namespace lineforge::tour
{

// The screen of a compositor that shows itself on an X screen as large as its own. Hands and pictures are those of the
// X screen; the windows are what the compositor tells of its scene, without the frames that the toolkit draws around
// them.
class Compositor : public Display
{
public:
    Compositor();

    QString Platform() const override { return QStringLiteral("wayland"); }
    bool PlacesAsAsked() const override { return false; }
    QSize Room() const override;
    std::vector<ScreenWindow> Windows() const override;
    std::optional<ScreenWindow> Find(xcb_window_t id) const override;
    using Display::Find;

    // The compositor sees to all of that by itself.
    bool IsKeptAbove(const ScreenWindow& window) const override;
    void Raise(const ScreenWindow& /*window*/) const override {}
    void GiveKeyboard(const ScreenWindow& /*window*/) const override {}
    void GiveKeyboardToTopmost() const override {}
    bool AwaitsKeyboard(const ScreenWindow& window) const override;

    // On the cross of the window's frame.
    std::optional<QPoint> ClosingCross(const ScreenWindow& window) const override;
    void AskToClose(const ScreenWindow& /*window*/) const override {}

private:
    void MeetPointer() const;

    mutable xcb_window_t pale_ = 0; // whose frame was drawn as that of a window without the keyboard when last seen
    mutable QElapsedTimer hasBeenPale_;
};

} // namespace lineforge::tour
