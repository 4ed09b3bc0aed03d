#pragma once

#include "tour/Input.h"
#include "x11/ManagedScreen.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace lineforge
{

// A user of windows of this very process: mouse and keyboard of the X screen, and what a desktop lets him do to
// windows. What returns a truth has waited for it, as long as a busy machine may take.
class Hands
{
public:
    const ManagedScreen& Screen() const { return screen_; }

    static bool Await(const std::function<bool()>& condition);
    // With the keyboard.
    bool ComesToFront(const QWidget& window) const;
    // It is in front first.
    bool Minimises(const QWidget& window) const;
    void BringToFront(const QWidget& window) const;
    void AskToClose(const QWidget& window) const;

    // In a window that is in front: the control, or the entry that the path of menus leads to.
    void Press(QWidget& window, const std::vector<const char*>& path);
    void Click(const QWidget& widget);
    void Press(tour::Key key) { input_.Press(key); }
    void Type(const QString& text) { input_.Type(text); }

private:
    bool IsInFront(const QWidget& window) const;
    void Choose(QWidget& window, const std::vector<const char*>& path);

    ManagedScreen screen_;
    tour::Input input_{screen_};
};

} // namespace lineforge
